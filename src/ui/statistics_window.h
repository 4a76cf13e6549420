#pragma once

#include "platform/form.h"

namespace mevracard {

/// The window "Game Statistics": games won and lost with their percentages.
struct StatisticsWindow {
  StatisticsWindow();
  StatisticsWindow(const StatisticsWindow&) = delete;
  StatisticsWindow& operator=(const StatisticsWindow&) = delete;

  Form form;
  Label wonCaption, lostCaption;
  Label won, lost;
  Label wonPercent, lostPercent;
  Button ok, clear;
};

}  // namespace mevracard
