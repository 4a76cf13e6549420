#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Lays the 0-0 in the centre for whoever holds it and says whose turn it is; `cardWasLaid` is then
/// whether the computer is to move.
void openWithDoubleZero(MainWindow& w);

}  // namespace mevracard
