#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Appends the general tip to the tip text.
void gnr(MainWindow& w);
/// Sets the tip text to its heading.
void resetTip(MainWindow& w);
/// Menu Tips of Game: shows a copy of the tip text.
void tips_Click(MainWindow& w);

}  // namespace mevracard
