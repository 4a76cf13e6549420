#pragma once

#include "game/game.h"

/// Which card fits where, and who must pass. Pure questions about a game state; cards are named by
/// their slots.
namespace mevracard {

/// The card bears the open number of this end.
[[nodiscard]] bool fitsAt(const Game& game, int card, End end);
/// The card fits at least one end.
[[nodiscard]] bool fits(const Game& game, int card);
/// The first end that it fits, Right/Top before Left/Bottom.
[[nodiscard]] std::optional<End> firstFit(const Game& game, int card);
/// The end that the card goes to: Right/Top before Left/Bottom, unless a side aims at Left/Bottom.
/// None if it fits no end that is allowed.
[[nodiscard]] std::optional<End> endFor(const Game& game, int card);

/// An end of the chain shows this number.
[[nodiscard]] bool isOpen(const Game& game, int number);
/// The card's two numbers are exactly the two open numbers, in either order. A double qualifies
/// when both ends show its number.
[[nodiscard]] bool bearsBothOpenNumbers(const Game& game, int card);
/// The same-number rule: bearsBothOpenNumbers and the two numbers differ, so that laying the
/// card leaves the same number open at both ends.
[[nodiscard]] bool makesSameNumber(const Game& game, int card);

/// None of these cards that is held fits either end.
[[nodiscard]] bool noneFits(const Game& game, std::span<const int> cards);
/// The side holds no card that fits.
[[nodiscard]] bool mustPass(const Game& game, Side side);

}  // namespace mevracard
