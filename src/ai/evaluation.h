#pragma once

#include "game/game.h"

namespace mevracard {

/// What the computer thinks of making both ends show `bannedNumber`, which would block the game.
enum class SameNumberVerdict {
  WouldLose,  ///< it could, and its sum of numbers left would still be the greater one
  Harmless,   ///< no end shows `bannedNumber`, or the sum would not be greater
  NoCard,     ///< an end shows it, but the computer holds no card with both open numbers
};

/// NoCard also if the computer holds no card at all.
[[nodiscard]] SameNumberVerdict sameNumberVerdict(const Game& game);

/// The one question that the rules ask.
[[nodiscard]] bool sameNumberWouldLose(const Game& game);

}  // namespace mevracard
