#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu Statistics: disables the main window and shows the figures of the file. A file that cannot
/// be read is a PlatformError.
void openStatistics(MainWindow& w);
/// Clear: a record of no games, shown at once.
void clearStatistics(MainWindow& w);
/// OK, or the close box: back to the main window.
void closeStatistics(MainWindow& w);

}  // namespace mevracard
