#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// The four level commands: each saves the level and deals a new game, the running one uncounted.
/// Throws PlatformError if it cannot be saved; level and game then stay as they were.
void choosePlayerLevel1(MainWindow& w);
void choosePlayerLevel2(MainWindow& w);
void chooseComputerLevel1(MainWindow& w);
void chooseComputerLevel2(MainWindow& w);

}  // namespace mevracard
