#pragma once

#include "ui/main_window.h"

namespace mevracard {

constexpr int replyDelay = 1000;  ///< milliseconds until the computer replies

/// After a card of the player: ends the game if it was the last one, else hands the turn to the
/// computer, whose reply comes after 1000 ms.
void afterPlayersCard(MainWindow& w);
/// The computer has no card left: the player loses.
void computerHasWon(MainWindow& w);
/// Neither side can move: decides the game by what is left in the hands.
void deadlock(MainWindow& w);

/// Writes both sums of numbers left.
void showSums(MainWindow& w);
/// Shows the result, reveals the computer's hand and freezes the table.
void showResult(MainWindow& w);

}  // namespace mevracard
