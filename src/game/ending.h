#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// After a card of the player: ends the game if it was the last one, else hands the turn to the
/// computer, whose reply comes after 1000 ms.
void player_akhir(MainWindow& w);
/// The computer has no card left: the player loses.
void computer_akhir(MainWindow& w);
/// Neither side can move: decides the game by what is left in the hands.
void deadlock(MainWindow& w);
/// Writes both sums of numbers left.
void Hitung(MainWindow& w);
/// Shows the result, reveals the computer's hand and freezes the table.
void akhirmain(MainWindow& w);

/// Shows the status line in front of the cards.
void raiseStatus(MainWindow& w);

}  // namespace mevracard
