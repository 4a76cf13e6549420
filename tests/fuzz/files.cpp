// Any bytes at all in the two data files: a whole start, a loss, level changes, the statistics.
// By hand: build/fuzz/tests/fuzz_files -max_total_time=600 -max_len=64 FOUND
// tests/fuzz/corpus/files
#include <cstdint>
#include <iostream>

#include "app/program.h"
#include "platform/headless/headless_desktop.h"
#include "store/digit_code.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {
namespace {

void demand(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "broken: " << what << '\n';
  std::abort();
}

/// A started program and its files.
struct Run {
  explicit Run(std::map<std::string, std::string, std::less<>> files) {
    desktop.world.files = std::move(files);
    program.start();
    demand(w.game.chain.openings == 1, "a game is under way");
    demand(w.menu.playerLevel1.checked != w.menu.playerLevel2.checked &&
               w.menu.computerLevel1.checked != w.menu.computerLevel2.checked,
           "a level is checked");
  }

  [[nodiscard]] std::string file(std::string_view name) {
    return desktop.world.files.at(std::string(name));
  }
  /// The choices that the windows show, as they are to stand in the settings file.
  [[nodiscard]] std::string choices() const {
    return settingsText(
        {w.menu.playerLevel1.checked ? 1 : 2, w.menu.computerLevel1.checked ? 1 : 2},
        w.state.tableSize);
  }
  void checkNextStart() const {
    demand(Run(desktop.world.files).choices() == choices(), "the next start finds the settings");
  }

  HeadlessDesktop desktop;
  Program program{desktop};
  MainWindow& w = program.window();
};

/// A new game in the middle of one is a loss more; what follows the statistics stays.
void loseAGame(Run& run) {
  const std::string before = run.file(statisticsFile);
  run.desktop.menu(run.w.menu.newGame);
  const std::string after = run.file(statisticsFile);
  const std::string digits = decodeDigits(std::string_view(before).substr(0, 12));
  const Statistics old = statisticsOf(before);
  const bool whole = digits.size() == 6 && before.starts_with(encodeDigits(digits));
  if (!whole || before.size() < 14 || old.won + old.lost > 998) return;
  const Statistics now = statisticsOf(after);
  demand(now.won == old.won && now.lost == old.lost + 1, "a loss is counted once");
  demand(after.substr(12) == before.substr(12, before.size() - 14) + "\r\n", "the rest is kept");
}

void chooseLevel(Run& run, MenuEntry& level) {
  run.desktop.menu(level);
  demand(level.checked, "a level is taken");
  demand(run.file(settingsFile) == run.choices(), "the settings are saved whole");
  run.checkNextStart();
}

void clearStatistics(Run& run) {
  run.desktop.menu(run.w.menu.statistics);
  run.desktop.click(run.w.statistics.clear);
  demand(run.w.statistics.lost.caption == "0", "Clear clears");
}

}  // namespace
}  // namespace mevracard

/// The first byte: in bits 0 to 3 the length of the settings file; bits 4 and 5 leave out the
/// settings, the statistics. The other bytes: the settings, then the statistics.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mevracard;
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::string settings = bytes.substr(0, data[0] & 15U);
  std::map<std::string, std::string, std::less<>> files;
  if ((data[0] & 16U) == 0) files.emplace(settingsFile, settings);
  if ((data[0] & 32U) == 0) files.emplace(statisticsFile, bytes.substr(settings.size()));
  const bool usable = files.size() == 2 && parseSettings(settings);

  Run run(files);
  if (usable) {
    demand(run.desktop.world.files == files, "a start changes nothing");
    run.checkNextStart();
  } else {
    demand(run.w.menu.playerLevel1.checked && run.w.menu.computerLevel1.checked,
           "both levels are 1 by default");
    demand(run.file(settingsFile) == "1/1/99\r\n", "the settings are made anew");
    demand(run.file(statisticsFile) == emptyStatisticsText(), "and so is the statistics");
  }
  loseAGame(run);
  run.checkNextStart();
  for (MenuEntry* level : {&run.w.menu.playerLevel2, &run.w.menu.computerLevel2,
                           &run.w.menu.playerLevel1, &run.w.menu.computerLevel1}) {
    chooseLevel(run, *level);
  }
  clearStatistics(run);
  return 0;
}
