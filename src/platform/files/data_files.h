#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/default_file.h"

namespace mevracard {

/// The program's data files: bytes by name, in one directory. Readers never see half a file, and of
/// two programs that write at once neither undoes the other's work unseen.
class DataFiles final {
 public:
  /// A directory that does not exist counts as one with the default files in it, which is made
  /// later: waiting for the disk would keep the player from a first look at the game. One that does
  /// exist is taken as it is, but for what a killed program left of a default file half written.
  DataFiles(const std::filesystem::path& directory, std::vector<DefaultFile> defaults);

  /// Makes the directory that is missing. If that fails the default files are missing, too.
  void complete();

  /// Throws PlatformError with the file's name and the reason, as all of them do.
  [[nodiscard]] std::string read(std::string_view name) const;
  /// Replaces the file as a whole, until it lies on the disk; on failure the old one is untouched.
  /// Only where the directory's own sync fails does the new one stand in its place, whole: it
  /// counts as failed, for a power cut may bring the old one back.
  void write(std::string_view name, std::string_view text) const;
  /// The same, only while the file still holds `expected`; false if it does not.
  [[nodiscard]] bool exchange(std::string_view name, std::string_view expected,
                              std::string_view text) const;

 private:
  void makeDirectory() const;

  std::filesystem::path directory_;
  std::vector<DefaultFile> defaults_;
  bool promised_;  ///< what is missing counts as there
};

}  // namespace mevracard
