#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Gives every control of the main window its design place, look and depth, back to front.
void designMainWindow(MainWindow& w);
/// Gives the menu entries their captions and builds the menu tree.
void designMenu(MainWindow& w);

}  // namespace mevracard
