#pragma once

#include <array>

#include "game/state.h"

/// What the tactical computer knows before it looks for a card.
namespace mevracard {

constexpr std::size_t numberCount = 7;

/// A count a number, 0 to 6.
using NumberCounts = std::array<int, numberCount>;

/// Non-double cards on the table that bear each number.
[[nodiscard]] NumberCounts playedCounts(const GameState& s);
/// Cards in the player's hand that bear each number; a double counts once.
[[nodiscard]] NumberCounts playerCounts(const GameState& s);

/// The numbers that the computer tries to bring to an open end, best first. Only the first three
/// are ever filled, the others stay -1.
using TargetRank = std::array<int, numberCount>;
[[nodiscard]] TargetRank targetRank(const NumberCounts& playerCount);

/// Sets `larangan` to a number of which five non-double cards lie on the table and which the
/// computer still holds, 7 for none, and moves it up in the ranking.
void findLarangan(GameState& s, TargetRank& rank);

}  // namespace mevracard
