#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Asks the player which number shall stay open. The card must make the same number.
void openChoice(MainWindow& w, int card);

/// The buttons of the choice: lay `playCard` at the Left/Bottom end, so that both ends show the
/// first active number; or at the Right/Top end, so that both show the second.
void kiri_Click(MainWindow& w);
void kanan_Click(MainWindow& w);
/// Cancel: the card stays in the hand.
void canc_Click(MainWindow& w);
/// A key during the choice: Esc cancels, the digit of an active number presses its button.
void hilang_KeyPress(MainWindow& w, int key);

}  // namespace mevracard
