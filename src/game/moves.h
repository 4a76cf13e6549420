#pragma once

#include "game/game.h"
#include "game/grid.h"

/// What can happen in a game, and what it does to it. Cards are named by their slots.
namespace mevracard {

/// The slot of the 0-0; none if a script has left no such card.
[[nodiscard]] std::optional<int> doubleZero(const Game& game);

/// The opening: the 0-0 is both ends of the chain and its owner has a card less. Tells who moves
/// first. Without a 0-0 the player's count goes down all the same.
Side openChain(Game& game, std::optional<int> doubleZero);

/// Where a card has come to lie.
struct Placement {
  End end;
  Laying laying;
  std::optional<int> joined;  ///< the card that lay at this end
};

/// Lays a card at the end that `endFor` names, turned so that its matching number touches the
/// chain; the other one is the open number from now on. A card that the player lays is counted, the
/// computer's are by `countComputersTurn`. None if it fits no end; nothing has changed then.
std::optional<Placement> lay(Game& game, int card, Side by);

/// QUIRK-09: one card less, however many the computer lays in its turn. One would expect a true
/// count; the player sees several cards appear at once.
void countComputersTurn(Game& game);

/// A side that holds no card that fits.
void pass(Game& game, Side side);

/// Neither side can move: the verdict for the player, by what is left in the hands.
GameResult decideDeadlock(Game& game);
/// A side has no card left.
GameResult winBy(Game& game, Side side);

}  // namespace mevracard
