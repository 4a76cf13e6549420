#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu ScreenOption (in the menu bar, and in Help): opens the panel "SCREEN CONTROL".
void openSizePanel(MainWindow& w);
/// OK of the panel: closes it and saves the settings. Throws PlatformError if they cannot be saved.
void closeSizePanel(MainWindow& w);

}  // namespace mevracard
