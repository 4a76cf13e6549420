#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu ScreenOption (in the menu bar, and in Help): opens the panel "SCREEN CONTROL".
void scr_Click(MainWindow& w);
void rufoxx_Click(MainWindow& w);
/// OK of the panel: closes it and saves the settings. Throws PlatformError if they cannot be saved.
void cmdscreen_Click(MainWindow& w);

}  // namespace mevracard
