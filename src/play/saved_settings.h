#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Takes both levels and the table size from the settings file. If either data file cannot be
/// read, or the table size is none that the player can choose, both files are made anew with their
/// defaults and both levels are 1; a default that cannot be written is reported to the player.
void loadSettings(MainWindow& w);

/// Writes the levels of the file and the table size in force. Throws PlatformError; the old file
/// is then untouched.
void saveSettings(MainWindow& w);
/// The same with other levels, which the game takes when it loads the settings again.
void saveSettings(MainWindow& w, const SavedLevels& levels);

}  // namespace mevracard
