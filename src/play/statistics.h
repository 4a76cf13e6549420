#pragma once

#include "ui/main_window.h"

namespace mevracard {

// A statistics file that cannot be read or written ends the first two without a message.
/// Adds the result of a game to the statistics.
void countResult(MainWindow& w, GameResult result);
/// Clear: no games, shown at once. Showing them may be a PlatformError, as in the window.
void clearStatistics(MainWindow& w);
/// Menu Statistics: disables the main window and shows what the file holds. A file that cannot
/// be read is a PlatformError.
void openStatistics(MainWindow& w);
/// OK, or the close box: back to the main window.
void closeStatistics(MainWindow& w);

}  // namespace mevracard
