#pragma once

#include <string>

namespace mevracard {

/// A file that a new data directory begins with.
struct DefaultFile {
  std::string name;
  std::string text;
};

}  // namespace mevracard
