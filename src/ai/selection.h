#pragma once

#include <array>
#include <optional>

#include "game/state.h"

/// Which card the tactical computer lays. Pure: the rules read the state and keep `playCard`, the
/// card under examination, and the tactical numbers in it.
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

/// Rules A to F in their order: the first that applies decides. Empty if none does. Leaves
/// `playCard` at the card, or at the last one examined. The caller has set `danger` to none at the
/// start of the turn.
[[nodiscard]] std::optional<Move> chooseTactically(GameState& s, Scan scan);

}  // namespace mevracard
