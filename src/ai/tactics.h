#pragma once

#include <array>

#include "game/game.h"

/// What the tactical computer knows before it looks for a card.
namespace mevracard {

/// A count for each number, 0 to 6.
using NumberCounts = std::array<int, 7>;

/// Non-double cards on the table that bear each number.
[[nodiscard]] NumberCounts playedCounts(const Game& game);
/// Cards in the player's hand that bear each number; a double counts once.
[[nodiscard]] NumberCounts playerCounts(const Game& game);

/// The two numbers that the computer tries to bring to an open end, best first.
using Targets = std::array<int, 2>;
/// Those of which the player holds the fewest cards.
[[nodiscard]] Targets rarestNumbers(const NumberCounts& playerCount);

/// Notes the banned number in the game's `mind`: the last one of which five non-double cards lie on
/// the table while the computer holds a card with it. Every such number becomes the best target.
void findBannedNumber(Game& game, Targets& targets);

}  // namespace mevracard
