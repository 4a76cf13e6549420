#pragma once

#include "game/grid.h"
#include "ui/main_window.h"

namespace mevracard {

/// Lays a card (a slot, 0 to 27) at the end that `endFor` names and says whether it was laid, which
/// `cardWasLaid` keeps; if not, nothing else has changed. Disarms the timer. Counts, covers and the
/// end of the game are the caller's.
bool layCard(MainWindow& w, int card);

/// Moves the frame of `playCard` step by step towards the grid place that `layPosition` and
/// `layColumn` name.
void glideCard(MainWindow& w);

/// Places a control at a design place times the scale.
void putAt(Box& box, GridPoint at, double scale);

}  // namespace mevracard
