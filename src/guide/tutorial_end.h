#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Ends the how-to-play tutorial: hides its controls and gives the menus back.
void how_hilang(MainWindow& w);

}  // namespace mevracard
