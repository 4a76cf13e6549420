#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Asks the player which number shall stay open. The card must make the same number.
void openChoice(MainWindow& w, int card);

/// Hides the buttons and arrows of the choice and gives the focus back to the Discard button.
/// Harmless while it is closed.
void closeChoice(MainWindow& w);

}  // namespace mevracard
