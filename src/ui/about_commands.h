#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu About: shows the window with the credits.
void author_Click(MainWindow& w);
/// Menu Go to Homepage, and the link of the About window. An address that cannot be opened is a
/// PlatformError.
void go_Click(MainWindow& w);
void Label1_Click(MainWindow& w);

/// Shows the window with the tips heading and the current tip text.
void showTips(MainWindow& w);

}  // namespace mevracard
