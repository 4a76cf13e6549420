#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// The four level commands: each saves the level and deals a new game, the running one uncounted.
/// Throws PlatformError if it cannot be saved; level and game then stay as they were.
void pl1_Click(MainWindow& w);
void pl2_Click(MainWindow& w);
void cl1_Click(MainWindow& w);
void cl2_Click(MainWindow& w);

}  // namespace mevracard
