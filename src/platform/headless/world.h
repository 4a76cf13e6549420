#pragma once

#include <deque>
#include <map>
#include <set>
#include <string>

#include "platform/desktop.h"

namespace mevracard {

/// What the headless desktop stands on, for the one who drives it to set up. It outlives a program
/// that ends and is started again.
struct World {
  int screenHeight = 11520;  ///< twips
  int twipsPerPixel = 15;
  std::string date = "1/2/2026";
  ClockTime time{3, 4};
  std::deque<double> draws;  ///< the next random numbers, before the seeded ones; in [0, 1)
  std::map<std::string, std::string, std::less<>> files;
  bool speaks = false;  ///< somebody listens: news is told, lists can be asked for
  std::set<std::string, std::less<>> unreadable, unwritable;  ///< names of files, present or not
};

}  // namespace mevracard
