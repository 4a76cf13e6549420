#include "simulate/player.h"

#include "game/rules.h"

namespace mevracard::simulate {

namespace {

int sumOf(const GameState& s, int card) {
  const auto i = static_cast<std::size_t>(card);
  return s.a[i] + s.b[i];
}

}  // namespace

std::optional<int> chooseCard(const GameState& s, Style style, RandomStream& random) {
  std::optional<int> chosen;
  int seen = 0;
  for (int i = playerFirst; i <= playerLast; ++i) {
    if (s.held[static_cast<std::size_t>(i)] != 1 || !matchesAny(s, i)) continue;
    ++seen;
    // The n-th card replaces the choice with probability 1/n: all are equally likely in the end.
    const bool better = !chosen || (style == Style::Random && random.below(seen) == 0) ||
                        (style == Style::Greedy && sumOf(s, i) > sumOf(s, *chosen));
    if (better) chosen = i;
  }
  return chosen;
}

End chooseEnd(Style style, RandomStream& random) {
  return style == Style::Random && random.below(2) == 0 ? End::LeftBottom : End::RightTop;
}

}  // namespace mevracard::simulate
