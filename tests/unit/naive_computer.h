#pragma once

#include <optional>

#include "game/state.h"

/// The tactical computer written a second time, loop by loop and without the game's own questions
/// and rules, so that a wrong index in one of the two shows as a difference.
namespace mevracard::naive {

/// What decides the turn. `G`: no tactical rule does and the plain first fit remains.
enum Rule { A1, A2, B1, B2, C1, C2, D, EDouble, EMixed, F, G, ruleCount };

struct Choice {
  Rule rule = G;
  int card = -1;           ///< slot of the card to lay, -1 for G
  bool secondEnd = false;  ///< the card is laid with `ngisor` set
};

std::optional<int> HitungMevra(const GameState& s);  ///< 1, 0 or empty
bool scansUpwards(double draw);                      ///< for a drawn number in [0, 1)

/// Chooses for the level-2 computer, and leaves `playCard`, `larangan`, `bahaya` and `bahaya2` in
/// the state as the choice leaves them.
Choice choose(GameState& s, double draw);

}  // namespace mevracard::naive
