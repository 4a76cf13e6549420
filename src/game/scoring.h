#pragma once

#include "game/game.h"

/// What is left in the hands when a game ends.
namespace mevracard {

struct Leftover {
  int sum = 0;  ///< of all numbers on the cards
  int cards = 0;
};

/// The cards that a side still holds.
[[nodiscard]] Leftover leftover(const Game& game, Side side);

/// Who wins a deadlock: the smaller sum, then the fewer cards; a full tie is the player's loss.
[[nodiscard]] bool playerWinsDeadlock(const Leftover& player, const Leftover& computer);

}  // namespace mevracard
