#include "game/scoring.h"

namespace mevracard {

Leftover leftover(const GameState& s, int lo, int hi) {
  Leftover left;
  for (int i = lo; i <= hi; ++i) {
    const auto card = static_cast<std::size_t>(i);
    if (s.held[card] != 1) continue;
    left.sum += s.a[card] + s.b[card];
    ++left.cards;
  }
  return left;
}

bool playerWinsDeadlock(const Leftover& player, const Leftover& computer) {
  if (player.sum != computer.sum) return player.sum < computer.sum;
  // QUIRK-20: nothing is left to tell them apart, and still somebody wins. One would expect a draw;
  // the player loses. Meant.
  return computer.cards > player.cards;
}

}  // namespace mevracard
