#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Writes the status line, and keeps in the state what it says.
void announce(MainWindow& w, Announcement announcement);
/// Shows the status line in front of the cards.
void raiseStatus(MainWindow& w);

}  // namespace mevracard
