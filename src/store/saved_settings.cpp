#include "store/saved_settings.h"

#include "store/statistics.h"
#include "ui/screen_scale.h"

namespace mevracard {

namespace {

std::optional<SavedSettings> savedSettings(Desktop& desktop) {
  try {
    const auto settings = parseSettings(desktop.readFile(settingsFile));
    // The record must be readable as well: one file without the other is a torn installation.
    (void)desktop.readFile(statisticsFile);
    return settings;
  } catch (const PlatformError&) {
    return std::nullopt;
  }
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
  write(settingsFile, std::string(defaultSettingsLine) + "\r\n");
  write(statisticsFile, emptyRecordText());
  if (!failures.empty()) w.report(failures);
}

}  // namespace

void checkPlayerLevel(MainWindow& w, int level) {
  w.pl1.checked = level == 1;
  w.pl2.checked = level == 2;
}

void checkComputerLevel(MainWindow& w, int level) {
  w.cl1.checked = level == 1;
  w.cl2.checked = level == 2;
}

void readSettings(MainWindow& w) {
  const auto saved = savedSettings(w.desktop);
  if (!saved) {
    // QUIRK-38: one file that cannot be read resets the other as well. One would expect the record
    // of games to survive a torn settings file; the player starts from no games. Meant.
    // QUIRK-24: the level fields stay empty after the files were made, so that the next level
    // command writes a torn line, which is then refused. One would expect the defaults "1" and "1";
    // the player's first choice of a level does not take and resets both files again. Meant.
    w.levels = {};
    checkPlayerLevel(w, 1);
    checkComputerLevel(w, 1);
    makeFilesAnew(w);
    return;
  }
  w.levels = {std::to_string(saved->playerLevel), std::to_string(saved->computerLevel)};
  checkPlayerLevel(w, saved->playerLevel);
  checkComputerLevel(w, saved->computerLevel);
  takeSavedScreenValue(w, saved->screenValue);
}

void writeSettings(MainWindow& w, const LevelFields& levels) {
  w.desktop.writeFile(settingsFile, settingsText(levels, w.state.screenValue));
}

}  // namespace mevracard
