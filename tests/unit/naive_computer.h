#pragma once

#include "ai/evaluation.h"

/// The tactical computer written a second time, loop by loop and without the game's own questions
/// and rules, so that a wrong index in one of the two shows as a difference.
namespace mevracard::naive {

/// What decides the turn. `G`: no tactical rule does and the plain first fit remains.
enum Rule { A1, A2, B1, B2, C1, C2, D, EDouble, EMixed, F, G, ruleCount };

struct Choice {
  Rule rule = G;
  int card = -1;           ///< slot of the card to lay, -1 for G
  bool secondEnd = false;  ///< the card is to go to the Left/Bottom end
};

SameNumberVerdict verdictOn(const GameState& s);
bool scansUpwards(double draw);  ///< for a drawn number in [0, 1)

/// Chooses for the level-2 computer, and leaves `playCard` and the tactical numbers in the state as
/// the choice leaves them.
Choice choose(GameState& s, double draw);

}  // namespace mevracard::naive
