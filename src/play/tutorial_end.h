#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Gives up a demonstrated move: ticks that still come find nothing left of it.
void giveUpDemonstratedMove(MainWindow& w);

/// Ends the how-to-play tutorial: hides its controls and gives the menus back.
void endTutorial(MainWindow& w);

}  // namespace mevracard
