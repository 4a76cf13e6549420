#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Writes the status line, and keeps in the state what it says.
void announce(MainWindow& w, Announcement announcement);
/// In front of everything, panels too; behind everything.
void bringStatusToFront(MainWindow& w);
void sendStatusToBack(MainWindow& w);
/// Shows the status line in front.
void showStatusInFront(MainWindow& w);

}  // namespace mevracard
