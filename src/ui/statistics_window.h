#pragma once

#include "platform/control.h"

namespace mevracard {

/// The window "Game Statistics": games won and lost with their percentages.
struct StatisticsWindow {
  StatisticsWindow();
  StatisticsWindow(const StatisticsWindow&) = delete;
  StatisticsWindow& operator=(const StatisticsWindow&) = delete;

  Form form;
  Label Label2, Label3;  ///< captions of the two rows
  Label wins, pwins, loses, ploses;
  Button tutuprec;  ///< OK
  Button hapusrec;  ///< Clear
};

struct MainWindow;

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
