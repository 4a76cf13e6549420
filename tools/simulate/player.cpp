#include "simulate/player.h"

#include "game/rules.h"

namespace mevracard::simulate {

std::optional<int> chooseCard(const Game& game, Style style, RandomStream& random) {
  std::optional<int> chosen;
  int seen = 0;
  for (const int slot : handOf(Side::Player)) {
    if (!game.card(slot).held || !fits(game, slot)) continue;
    ++seen;
    // The n-th card replaces the choice with probability 1/n: all are equally likely in the end.
    const bool better =
        !chosen || (style == Style::Random && random.below(seen) == 0) ||
        (style == Style::Greedy && game.card(slot).sum() > game.card(*chosen).sum());
    if (better) chosen = slot;
  }
  return chosen;
}

End chooseEnd(Style style, RandomStream& random) {
  return style == Style::Random && random.below(2) == 0 ? End::LeftBottom : End::RightTop;
}

}  // namespace mevracard::simulate
