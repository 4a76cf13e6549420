#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// The parts of the same-number choice. Open means that its buttons wait for the player.
[[nodiscard]] inline bool choiceIsOpen(const MainWindow& w) { return w.canc.visible; }

/// Hides the buttons and arrows of the choice and gives the focus back to the Discard button.
/// Harmless while it is closed.
void closeChoice(MainWindow& w);

}  // namespace mevracard
