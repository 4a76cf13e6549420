#pragma once

#include <cstdint>
#include <istream>

#include "simulate/player.h"

namespace mevracard::simulate {

/// What to simulate, and what holds for a word that is not given.
struct Request {
  int games = 1000;
  int level = 1;  ///< of the computer
  std::uint64_t seed = 1;
  Style player = Style::Random;
  bool watch = false;  ///< hold the table after every event against what must always be true
};

/// Reads a request, one word and its value a line; a later line outdoes an earlier one. Throws
/// std::runtime_error with "line N: WHY".
[[nodiscard]] Request readRequest(std::istream& in);

}  // namespace mevracard::simulate
