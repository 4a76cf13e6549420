#pragma once

#include "game/grid.h"
#include "ui/main_window.h"

namespace mevracard {

/// Lays the card `playCard` at the first end it fits: Right/Top, unless `leftEndChosen` or `ngisor`
/// ask for Left/Bottom. Sets `moveMade` to 1, or to 0 if the card was not laid; then nothing else
/// has changed. Disarms the timer. Counts, covers and the end of the game are the caller's.
/// A slot out of range is a std::out_of_range.
void Cocok(MainWindow& w);

/// Moves the frame of `playCard` step by step towards the grid place that `layPosition` and
/// `layColumn` name.
void moving(MainWindow& w);

/// Places a control at a design place times the scale.
void putAt(Box& box, GridPoint at, double scale);

}  // namespace mevracard
