#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/control.h"

namespace mevracard {

/// One thing on a window, in words.
struct SpokenItem {
  Box* control = nullptr;  ///< where it lies; an item of its own, whatever it says
  std::string words;
  bool selected = false;
  bool answersPress = false;  ///< a press is a double-click on the control
};

struct SpokenList {
  std::string words;  ///< what it is called
  std::vector<SpokenItem> items;
};

/// What a window tells a player who does not look at it.
struct Speech {
  std::vector<SpokenList> lists;  ///< what can be asked for; always as many
  std::string news;               ///< what is said without being asked
  int timesTold = 0;              ///< also when the same came again

  void tell(std::string words) {
    news = std::move(words);
    ++timesTold;
  }
};

}  // namespace mevracard
