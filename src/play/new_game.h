#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Loads the main window: reads the settings, deals and opens a game.
void startGame(MainWindow& w);
/// The same for every game after the first.
void startAnotherGame(MainWindow& w);

/// The deal: shuffles, lays out both hands, and runs the opening.
void deal(MainWindow& w);

}  // namespace mevracard
