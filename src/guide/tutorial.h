#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu HowToPlay: starts the demonstration game, the running one uncounted.
void how_Click(MainWindow& w);
/// NEXT: lets the computer move, or demonstrates a move of the player's.
void cmdHow_Click(MainWindow& w);
/// Mouse button down on NEXT: the pointer's way starts at the button.
void cmdHow_MouseDown(MainWindow& w);
/// Stop: ends the tutorial and deals a normal game.
void cmdCL_Click(MainWindow& w);
/// Marks the numbers that fit the card `playCard` and starts the pointer's way to it.
void MouseMv(MainWindow& w);

}  // namespace mevracard
