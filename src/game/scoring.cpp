#include "game/scoring.h"

namespace mevracard {

Leftover leftover(const Game& game, Side side) {
  Leftover left;
  for (const int slot : handOf(side)) {
    const Card& card = game.card(slot);
    if (!card.held) continue;
    left.sum += card.sum();
    ++left.cards;
  }
  return left;
}

bool playerWinsDeadlock(const Leftover& player, const Leftover& computer) {
  if (player.sum != computer.sum) return player.sum < computer.sum;
  // QUIRK-20: nothing is left to tell them apart, and still somebody wins. One would expect a draw;
  // the player loses.
  return computer.cards > player.cards;
}

}  // namespace mevracard
