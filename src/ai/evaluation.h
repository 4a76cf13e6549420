#pragma once

#include <optional>

#include "game/state.h"

namespace mevracard {

/// The computer's view of the same-number situation. 1: an end shows `larangan`, the computer could
/// make both ends equal, and its sum of numbers left would still be the greater one. 0: no end
/// shows `larangan`, or the sum would not be greater. Empty: an end shows it but no card of the
/// computer bears both active numbers, or it holds no card.
[[nodiscard]] std::optional<int> HitungMevra(const GameState& s);

/// The two tests that the rules make of it: empty counts as 0.
[[nodiscard]] bool sameNumberWouldLose(const GameState& s);
[[nodiscard]] bool sameNumberIsSafe(const GameState& s);

}  // namespace mevracard
