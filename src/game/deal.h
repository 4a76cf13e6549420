#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <utility>

#include "game/game.h"

/// The deal: its seed, the shuffle, a new game.
namespace mevracard {

/// The 28 pairs of a deal by slot, smaller number first.
using Deck = std::array<std::pair<int, int>, cardCount>;

/// The year at the end of a short date (its last four characters read as a number) divided by the
/// sum of minute and second.
[[nodiscard]] double dealSeedOf(std::string_view shortDate, int minute, int second);

/// Shuffles and deals. Draws 28 numbers in [0, 1), one a card.
[[nodiscard]] Deck shuffledDeck(const std::function<double()>& draw);

/// Deals a new game at the levels of the one before. The open numbers and the end cards of that one
/// stay until the opening, its result until the end.
void deal(Game& game, const Deck& deck);

}  // namespace mevracard
