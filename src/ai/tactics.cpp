#include "ai/tactics.h"

#include "game/rules.h"

namespace mevracard {

namespace {

std::size_t at(int number) { return static_cast<std::size_t>(number); }

}  // namespace

NumberCounts playedCounts(const GameState& s) {
  NumberCounts count{};
  for (std::size_t i = 0; i < cardCount; ++i) {
    if (s.held[i] != 0 || s.a[i] == s.b[i]) continue;
    ++count.at(at(s.a[i]));
    ++count.at(at(s.b[i]));
  }
  return count;
}

NumberCounts playerCounts(const GameState& s) {
  // QUIRK-35: the computer looks into the player's hand. One would expect it to play by what lies
  // on the table; at level 2 the player meets an opponent that knows every card. Meant.
  NumberCounts count{};
  for (std::size_t i = playerFirst; i <= playerLast; ++i) {
    if (s.held[i] != 1) continue;
    ++count.at(at(s.a[i]));
    if (s.b[i] != s.a[i]) ++count.at(at(s.b[i]));
  }
  return count;
}

TargetRank targetRank(const NumberCounts& playerCount) {
  TargetRank rank;
  rank.fill(-1);
  int chosen = 0;
  for (std::size_t m = 0; m < 3; ++m) {
    int fewest = 7;
    for (std::size_t n = 0; n < numberCount; ++n) {
      // QUIRK-21: asks about rank n, where the numbers already chosen stand at ranks of their own.
      // One would expect a chosen number to be left out; after the first rank it is the number 0,
      // after the second also the 1, and the computer may aim twice at one number. Meant.
      if (rank[n] == -1 && playerCount[n] < fewest) {
        fewest = playerCount[n];
        chosen = static_cast<int>(n);
      }
    }
    rank[m] = chosen;
  }
  return rank;
}

void findLarangan(GameState& s, TargetRank& rank) {
  s.larangan = noTacticalNumber;
  const NumberCounts played = playedCounts(s);
  for (int n = 0; n < static_cast<int>(numberCount); ++n) {
    if (played[at(n)] != 5) continue;
    for (int i = computerFirst; i <= computerLast; ++i) {
      if (s.held[at(i)] != 1 || !bears(s, i, n)) continue;
      s.larangan = n;
      // QUIRK-22: repeated for every such card, so that two of them put the number on both first
      // ranks. One would expect one shift; the computer then forgets its best target. Meant.
      rank[1] = rank[0];
      rank[0] = n;
    }
  }
}

}  // namespace mevracard
