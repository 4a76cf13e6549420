#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu New Game: a running game is told of and counted as lost, then a new one is dealt.
void chooseNewGame(MainWindow& w);
/// Menu Exit, and the close box of the main window: the same, then the program ends.
void chooseExit(MainWindow& w);
/// The system ends the program: the same without a word.
void endBySystem(MainWindow& w);

}  // namespace mevracard
