#pragma once

#include <array>
#include <functional>
#include <optional>

#include "game/game.h"

/// What the computer lays in its turn. The rules read the game and note in its `mind` what they
/// find.
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

/// Lays a card of the computer's in sight of the player.
using Lay = std::function<void(const Move&)>;

/// The computer's turn at its level, one move after the other. At level 2 the first of rules A to F
/// that applies decides; else, and at level 1, rule G does.
void moveForComputer(Game& game, Scan scan, const Lay& lay);

}  // namespace mevracard
