#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Sets the tip text to its heading.
void resetTip(MainWindow& w);
/// Appends the general tip to the tip text.
void appendGeneralTip(MainWindow& w);
/// Menu Tips of Game: shows the window with the tips heading and a copy of the tip text.
void showTips(MainWindow& w);

}  // namespace mevracard
