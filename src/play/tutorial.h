#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu HowToPlay: starts the tutorial, the running game uncounted.
void startTutorial(MainWindow& w);
/// NEXT: lets the computer move, or demonstrates a move of the player's.
void pressNext(MainWindow& w);
/// Mouse button down on NEXT: the pointer's way starts at the button.
void mouseDownOnNext(MainWindow& w);
/// Stop: ends the tutorial and deals a normal game.
void stopTutorial(MainWindow& w);

}  // namespace mevracard
