#pragma once

#include <optional>

#include "game/rules.h"

/// Which card the tactical computer lays. Pure: the rules read the state and keep `playCard`, the
/// card under examination, and the tactical numbers in it.
namespace mevracard {

/// Order in which the computer looks through its hand.
struct ScanDirection {
  int from, to, step;
};

/// The direction for a drawn number in [0, 1): upwards for the upper half, 0.5 excepted.
[[nodiscard]] ScanDirection scanDirection(double draw);

/// Calls `examine(card)` for the computer's cards in scan order, with `playCard` set to the card,
/// until it says true.
template <typename Examine>
bool scanHand(GameState& s, ScanDirection scan, Examine examine) {
  for (int j = scan.from; j != scan.to + scan.step; j += scan.step) {
    s.playCard = j;
    if (examine(j)) return true;
  }
  return false;
}

inline constexpr ScanDirection upwards{computerFirst, computerLast, +1};

struct Selection {
  int card = 0;
  End end = End::RightTop;
};

/// Rules A to F in their order: the first that applies decides. Empty if none does. With RightTop
/// the card goes to the first end that it fits. Leaves `playCard` at the card, or at the last one
/// examined. The caller has set `bahaya` to none at the start of the turn.
[[nodiscard]] std::optional<Selection> selectTactically(GameState& s, ScanDirection scan);

}  // namespace mevracard
