#include "ai/tactics.h"

namespace mevracard {

namespace {

int& countOf(NumberCounts& counts, int number) {
  return counts.at(static_cast<std::size_t>(number));
}

/// The number with the lowest count, of equal ones the lowest number; `otherwise` if every count
/// reaches seven.
int rarest(const NumberCounts& counts, std::size_t from, int otherwise) {
  int fewest = 7;
  for (std::size_t n = from; n < counts.size(); ++n) {
    if (counts[n] >= fewest) continue;
    fewest = counts[n];
    otherwise = static_cast<int>(n);
  }
  return otherwise;
}

}  // namespace

NumberCounts playedCounts(const Game& game) {
  NumberCounts counts{};
  for (const Card& card : game.cards) {
    if (card.held || card.isDouble()) continue;
    ++countOf(counts, card.upper);
    ++countOf(counts, card.lower);
  }
  return counts;
}

NumberCounts playerCounts(const Game& game) {
  // QUIRK-35: the computer looks into the player's hand. One would expect it to play by what lies
  // on the table; at level 2 the player meets an opponent that knows every card.
  NumberCounts counts{};
  for (const int slot : handOf(Side::Player)) {
    const Card& card = game.card(slot);
    if (!card.held) continue;
    ++countOf(counts, card.upper);
    if (!card.isDouble()) ++countOf(counts, card.lower);
  }
  return counts;
}

Targets rarestNumbers(const NumberCounts& playerCount) {
  const int best = rarest(playerCount, 0, 0);
  // QUIRK-21: leaves out the number 0, chosen or not, in place of the number that was chosen. One
  // would expect two different targets; the computer often aims twice at one number.
  return {best, rarest(playerCount, 1, best)};
}

void findBannedNumber(Game& game, Targets& targets) {
  game.mind.bannedNumber = noNumber;
  const NumberCounts played = playedCounts(game);
  for (int n = 0; n < static_cast<int>(played.size()); ++n) {
    if (played[static_cast<std::size_t>(n)] != 5) continue;
    for (const int slot : handOf(Side::Computer)) {
      if (!game.card(slot).held || !game.card(slot).bears(n)) continue;
      game.mind.bannedNumber = n;
      // QUIRK-22: once for every card, so that two of them put the number on both ranks. One would
      // expect one shift; the computer then forgets its best target.
      targets = {n, targets[0]};
    }
  }
}

}  // namespace mevracard
