#include "ai/evaluation.h"

#include "game/rules.h"
#include "game/scoring.h"

namespace mevracard {

SameNumberVerdict sameNumberVerdict(const GameState& s) {
  const bool banShows = s.openNumber[End::RightTop] == s.bannedNumber ||
                        s.openNumber[End::LeftBottom] == s.bannedNumber;
  for (const int card : handOf(Side::Computer)) {
    if (!s.card(card).held) continue;
    if (!banShows) return SameNumberVerdict::Harmless;
    if (!bearsBothActiveNumbers(s, card)) continue;
    const int players = leftover(s, Side::Player).sum;
    const int computers = leftover(s, Side::Computer).sum - s.card(card).sum();
    return computers > players ? SameNumberVerdict::WouldLose : SameNumberVerdict::Harmless;
  }
  return SameNumberVerdict::NoCard;
}

bool sameNumberWouldLose(const GameState& s) {
  return sameNumberVerdict(s) == SameNumberVerdict::WouldLose;
}

}  // namespace mevracard
