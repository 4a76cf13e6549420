#include "ai/evaluation.h"

#include "game/rules.h"
#include "game/scoring.h"

namespace mevracard {

SameNumberVerdict sameNumberVerdict(const Game& game) {
  const bool banShows = isOpen(game, game.mind.bannedNumber);
  for (const int card : handOf(Side::Computer)) {
    if (!game.card(card).held) continue;
    if (!banShows) return SameNumberVerdict::Harmless;
    if (!bearsBothOpenNumbers(game, card)) continue;
    const int players = leftover(game, Side::Player).sum;
    const int computers = leftover(game, Side::Computer).sum - game.card(card).sum();
    return computers > players ? SameNumberVerdict::WouldLose : SameNumberVerdict::Harmless;
  }
  return SameNumberVerdict::NoCard;
}

bool sameNumberWouldLose(const Game& game) {
  return sameNumberVerdict(game) == SameNumberVerdict::WouldLose;
}

}  // namespace mevracard
