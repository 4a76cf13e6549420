#pragma once

#include "game/grid.h"
#include "ui/main_window.h"

namespace mevracard {

/// Disarms the timer and lays a card (a slot, 0 to 27) for a side, as `lay` does, in sight. Says
/// whether it fitted; if not, the chain is as it was.
bool layCard(MainWindow& w, int card, Side by);

/// Moves the frame of a card step by step towards the grid place that `layPosition` and
/// `layColumn` name.
void glideCard(MainWindow& w, int slot);

/// Places a control at a design place times the scale.
void putAt(Box& box, GridPoint at, double scale);

}  // namespace mevracard
