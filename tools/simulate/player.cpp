#include "simulate/player.h"

#include "game/rules.h"

namespace mevracard::simulate {

std::optional<int> chooseCard(const GameState& s, Style style, RandomStream& random) {
  std::optional<int> chosen;
  int seen = 0;
  for (const int slot : handOf(Side::Player)) {
    if (!s.card(slot).held || !fits(s, slot)) continue;
    ++seen;
    // The n-th card replaces the choice with probability 1/n: all are equally likely in the end.
    const bool better = !chosen || (style == Style::Random && random.below(seen) == 0) ||
                        (style == Style::Greedy && s.card(slot).sum() > s.card(*chosen).sum());
    if (better) chosen = slot;
  }
  return chosen;
}

End chooseEnd(Style style, RandomStream& random) {
  return style == Style::Random && random.below(2) == 0 ? End::LeftBottom : End::RightTop;
}

}  // namespace mevracard::simulate
