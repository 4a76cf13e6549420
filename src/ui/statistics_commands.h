#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Menu Statistics: disables the main window and shows the figures of the file. A file that cannot
/// be read is a PlatformError.
void stat_Click(MainWindow& w);
/// Clear: a record of no games, shown at once.
void hapusrec_Click(MainWindow& w);
/// OK: back to the main window.
void tutuprec_Click(MainWindow& w);
/// The close box does what OK does.
void closeStatistics(MainWindow& w);

}  // namespace mevracard
