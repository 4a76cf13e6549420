#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <utility>

#include "game/cards.h"

/// Seed and shuffle of a deal.
namespace mevracard {

/// The 28 pairs of a deal by slot, smaller number first.
using Deck = std::array<std::pair<int, int>, cardCount>;

/// The year at the end of a short date (its last four characters read as a number) divided by the
/// sum of minute and second.
[[nodiscard]] double dealSeedOf(std::string_view shortDate, int minute, int second);

/// Shuffles and deals. Draws 28 numbers in [0, 1), one a card.
[[nodiscard]] Deck shuffledDeck(const std::function<double()>& draw);

}  // namespace mevracard
