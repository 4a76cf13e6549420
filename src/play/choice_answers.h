#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// The buttons of the choice: lay its card at the Left/Bottom end, so that both ends show the
/// first open number; or at the Right/Top end, so that both show the second.
void chooseLeftBottom(MainWindow& w);
void chooseRightTop(MainWindow& w);
/// Cancel: the card stays in the hand.
void cancelChoice(MainWindow& w);
/// A key while the choice is open: Esc cancels, the digit of an open number presses its button.
void answerByKey(MainWindow& w, int key);

}  // namespace mevracard
