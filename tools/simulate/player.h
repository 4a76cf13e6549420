#pragma once

#include <optional>

#include "game/game.h"
#include "simulate/random_stream.h"

namespace mevracard::simulate {

/// How the simulated player chooses among the cards that fit.
enum class Style {
  First,   ///< the lowest slot
  Random,  ///< any, each as likely
  Greedy,  ///< the greatest sum of numbers, of equal ones the lowest slot
};

/// The slot to lay next, none if no card fits.
[[nodiscard]] std::optional<int> chooseCard(const Game& game, Style style, RandomStream& random);

/// The end to lay at when the player is asked which number shall stay open: Right/Top, where any
/// other card would go first; the random player takes either.
[[nodiscard]] End chooseEnd(Style style, RandomStream& random);

}  // namespace mevracard::simulate
