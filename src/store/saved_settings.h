#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Reads the settings file into the level entries and the screen size. If either data file cannot
/// be read, or the screen size is none that the control takes, both files are made anew with their
/// defaults and both levels are 1; a default that cannot be written is reported to the player.
void readSettings(MainWindow& w);

/// Writes the settings file. Throws PlatformError; the old file is then untouched.
void writeSettings(MainWindow& w, const LevelFields& levels);

/// Sets the check marks of a level, 1 or 2.
void checkPlayerLevel(MainWindow& w, int level);
void checkComputerLevel(MainWindow& w, int level);

}  // namespace mevracard
