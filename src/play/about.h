#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu About: shows the window with the credits.
void showAbout(MainWindow& w);
/// The close box of the About window, which is also the tips window.
void closeAbout(MainWindow& w);
/// Menu Go to Homepage, and the link of the About window. An address that cannot be opened is a
/// PlatformError.
void openHomepage(MainWindow& w);

}  // namespace mevracard
