#include "play/saved_settings.h"

#include "play/table_size.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {

namespace {

std::optional<SavedSettings> readSettings(Desktop& desktop) {
  try {
    const auto settings = parseSettings(desktop.readFile(settingsFile));
    // The statistics must be readable as well: one file without the other is a torn installation.
    (void)desktop.readFile(statisticsFile);
    return settings;
  } catch (const PlatformError&) {
    return std::nullopt;
  }
}

void takeSettings(MainWindow& w, const SavedSettings& saved) {
  w.state.savedLevels = {saved.playerLevel, saved.computerLevel};
  w.game.levels.player = saved.playerLevel;
  w.game.levels.computer = saved.computerLevel;
  takeTableSize(w, saved.tableSize);
}

void makeFilesAnew(MainWindow& w) {
  std::string failures;
  const auto write = [&](std::string_view name, std::string_view text) {
    try {
      w.desktop.writeFile(name, text);
    } catch (const PlatformError& error) {
      if (!failures.empty()) failures += "\n";
      failures += error.what();
    }
  };
  write(settingsFile, defaultSettingsText());
  write(statisticsFile, emptyStatisticsText());
  if (!failures.empty()) w.report(failures);
}

void takeDefaults(MainWindow& w) {
  // QUIRK-38: one file that cannot be read resets the other as well. One would expect the
  // statistics to survive a torn settings file; the player starts from no games.
  makeFilesAnew(w);
  // QUIRK-24: the level fields stay empty after the files were made, so that the next level
  // command writes a torn line, which is then refused. One would expect both to be 1; the player's
  // first choice of a level does not take and resets both files again.
  w.state.savedLevels = {};
  w.game.levels.player = 1;
  w.game.levels.computer = 1;
}

}  // namespace

void loadSettings(MainWindow& w) {
  if (const auto saved = readSettings(w.desktop)) {
    takeSettings(w, *saved);
  } else {
    takeDefaults(w);
  }
}

void saveSettings(MainWindow& w) { saveSettings(w, w.state.savedLevels); }

void saveSettings(MainWindow& w, const SavedLevels& levels) {
  w.desktop.writeFile(settingsFile, settingsText(levels, w.state.tableSize));
}

}  // namespace mevracard
