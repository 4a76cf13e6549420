#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Sets the tip text to its heading.
void resetTip(MainWindow& w);
/// Appends the general tip to the tip text.
void appendGeneralTip(MainWindow& w);
/// Shows the window with the tips heading and a copy of the tip text, where it was last placed.
void showTips(MainWindow& w);
/// Menu Tips of Game: the same, at a place where it hides nothing that the tips speak of.
void openTips(MainWindow& w);

}  // namespace mevracard
