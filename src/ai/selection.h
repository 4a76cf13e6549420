#pragma once

#include <array>
#include <optional>

#include "game/game.h"

/// Which card the tactical computer lays. The rules read the game and keep the
/// tactical numbers in it.
namespace mevracard {

/// Order in which a hand is looked through.
enum class Scan { Upwards, Downwards };

/// The direction for a drawn number in [0, 1): upwards for the upper half, 0.5 excepted.
[[nodiscard]] Scan scanFor(double draw);

/// The slots of a hand in scan order.
[[nodiscard]] std::array<int, handSize> scanned(Side side, Scan scan);

/// A move of the computer's: which card, and to which end; none is the first end that it fits.
struct Move {
  int card;
  std::optional<End> end;
};

/// Rules A to F in their order: the first that applies decides. Empty if none does. The
/// caller has set `danger` to none at the start of the turn.
[[nodiscard]] std::optional<Move> chooseTactically(Game& game, Scan scan);

}  // namespace mevracard
