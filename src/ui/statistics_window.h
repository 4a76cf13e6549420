#pragma once

#include "platform/form.h"

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

}  // namespace mevracard
