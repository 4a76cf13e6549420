#pragma once

#include "game/state.h"

/// Which card matches what. Pure questions about a game state.
namespace mevracard {

/// Slots of the two hands, first and last.
constexpr int playerFirst = 0, playerLast = 13;
constexpr int computerFirst = 14, computerLast = 27;

/// The card bears this number on either half.
[[nodiscard]] bool bears(const GameState& s, int card, int number);
/// The card bears the active number of this end.
[[nodiscard]] bool matchesEnd(const GameState& s, int card, End end);
/// The card matches at least one end.
[[nodiscard]] bool matchesAny(const GameState& s, int card);
[[nodiscard]] bool isDouble(const GameState& s, int card);

/// The card's two numbers are exactly the two active numbers, in either order. A double qualifies
/// when both ends show its number.
[[nodiscard]] bool bearsBothActiveNumbers(const GameState& s, int card);
/// The same-number rule: bearsBothActiveNumbers and the two numbers differ, so that laying the
/// card leaves the same number open at both ends.
[[nodiscard]] bool makesSameNumber(const GameState& s, int card);

/// 1 when no held card of the slots `lo` to `hi` matches either end, else 0.
[[nodiscard]] int noPlayableCard(const GameState& s, int lo, int hi);
[[nodiscard]] bool playerIsStuck(const GameState& s);
[[nodiscard]] bool computerIsStuck(const GameState& s);

}  // namespace mevracard
