#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "app/program.h"
#include "platform/files/data_files.h"
#include "platform/headless/headless_desktop.h"
#include "play/game_menu.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {

/// No windows, but the files of the real desktop.
class DiskDesktop : public HeadlessDesktop {
 public:
  explicit DiskDesktop(const std::filesystem::path& directory, Sink sink = {})
      : HeadlessDesktop(std::move(sink)),
        files_(directory, {{std::string(settingsFile), defaultSettingsText()},
                           {std::string(statisticsFile), emptyStatisticsText()}}) {}

  std::string readFile(std::string_view name) override { return files_.read(name); }
  void writeFile(std::string_view name, std::string_view text) override {
    files_.write(name, text);
  }
  bool exchangeFile(std::string_view name, std::string_view expected,
                    std::string_view text) override {
    return files_.exchange(name, expected, text);
  }
  void completeFiles() override { files_.complete(); }

 private:
  DataFiles files_;
};

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// How many names there are in a directory; 0 for none.
inline int entriesIn(const std::filesystem::path& directory) {
  std::error_code missing;
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(directory, missing)) {
    count += entry.exists() ? 1 : 0;
  }
  return count;
}

}  // namespace mevracard
