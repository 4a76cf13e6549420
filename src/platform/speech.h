#pragma once

#include <string>
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
  std::string line;               ///< how things stand, while nothing is new
  bool unsaid = false;            ///< a desktop says the news once, and takes this back

  /// Said together with what was not said yet.
  void tell(const std::string& words) {
    news = unsaid ? news + words : words;
    unsaid = true;
  }
};

}  // namespace mevracard
