#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Sets the tip text to its heading.
void resetTip(MainWindow& w);
/// Appends a tip that names the open numbers to the tip text; the general one.
void appendTip(MainWindow& w, std::string (*tip)(int first, int second));
void appendGeneralTip(MainWindow& w);
/// Shows the window with the tips heading and a copy of the tip text, where it was last placed.
void showTips(MainWindow& w);
/// Menu Tips of Game: the same, at a place where it hides nothing that the tips speak of.
void openTips(MainWindow& w);

}  // namespace mevracard
