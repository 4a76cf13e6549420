#pragma once

#include "game/game.h"
#include "game/grid.h"

/// How cards join the chain, as far as the state goes.
namespace mevracard {

/// The opening: the card in this slot, the 0-0, is both ends of the chain.
void openChain(Game& game, int card);

/// Lays a card at an end that it fits, turned so that its matching number touches the chain; the
/// other one is the open number from now on. Tells how it lies.
Laying joinChain(Game& game, int card, End end);

}  // namespace mevracard
