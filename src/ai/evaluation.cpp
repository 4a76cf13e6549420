#include "ai/evaluation.h"

#include "game/rules.h"
#include "game/scoring.h"

namespace mevracard {

std::optional<int> HitungMevra(const GameState& s) {
  std::optional<int> result;
  for (int j = computerFirst; j <= computerLast; ++j) {
    const auto card = static_cast<std::size_t>(j);
    if (s.held[card] != 1) continue;
    if (s.kotak[0] != s.larangan && s.kotak[1] != s.larangan) {
      result = 0;
    } else if (bearsBothActiveNumbers(s, j)) {
      const int players = leftover(s, playerFirst, playerLast).sum;
      const int computers = leftover(s, computerFirst, computerLast).sum;
      return computers - (s.a[card] + s.b[card]) > players ? 1 : 0;
    }
  }
  return result;
}

bool sameNumberWouldLose(const GameState& s) { return HitungMevra(s) == 1; }

bool sameNumberIsSafe(const GameState& s) { return HitungMevra(s).value_or(0) == 0; }

}  // namespace mevracard
