#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Marks the numbers that fit the card to be demonstrated and starts the pointer's way to it.
void aimPointer(MainWindow& w);

/// A tick of the pointer's way: a glide, vanishing and reappearing twice as a double-click, a
/// pause, and the play of the card.
void demonstrate(MainWindow& w);

/// A place of the real screen in pixels of 15 twips; none where the screen cannot be asked.
[[nodiscard]] std::optional<ScreenPoint> placeOnScreen(const MainWindow& w, const Box& control);

}  // namespace mevracard
