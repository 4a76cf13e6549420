#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu Statistics: disables the main window and shows what the file holds. A file that cannot
/// be read is a PlatformError.
void openStatistics(MainWindow& w);
/// Clear: no games, shown at once.
void clearStatistics(MainWindow& w);
/// OK, or the close box: back to the main window.
void closeStatistics(MainWindow& w);

}  // namespace mevracard
