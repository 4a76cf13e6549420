#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Loads the main window: reads the settings, deals and opens a game. At program start and for
/// every new game; the caller has set `firstDealDone` for the latter.
void Form_Load(MainWindow& w);

/// The deal: shuffles, lays out both hands, and runs the opening.
void Awal(MainWindow& w);

}  // namespace mevracard
