#include "game/rules.h"

namespace mevracard {

namespace {
std::size_t at(int card) { return static_cast<std::size_t>(card); }
}  // namespace

bool bears(const GameState& s, int card, int number) {
  return s.a.at(at(card)) == number || s.b.at(at(card)) == number;
}

bool matchesEnd(const GameState& s, int card, End end) {
  return bears(s, card, s.activeNumber(end));
}

bool matchesAny(const GameState& s, int card) {
  return matchesEnd(s, card, End::RightTop) || matchesEnd(s, card, End::LeftBottom);
}

bool isDouble(const GameState& s, int card) { return s.a.at(at(card)) == s.b.at(at(card)); }

bool bearsBothActiveNumbers(const GameState& s, int card) {
  const int x = s.a.at(at(card));
  const int y = s.b.at(at(card));
  const auto [first, second] = s.kotak;
  return (x == first && y == second) || (x == second && y == first);
}

bool makesSameNumber(const GameState& s, int card) {
  return !isDouble(s, card) && bearsBothActiveNumbers(s, card);
}

int noPlayableCard(const GameState& s, int lo, int hi) {
  for (int i = lo; i <= hi; ++i) {
    if (s.held.at(at(i)) == 1 && matchesAny(s, i)) return 0;
  }
  return 1;
}

bool playerIsStuck(const GameState& s) { return noPlayableCard(s, playerFirst, playerLast) == 1; }

bool computerIsStuck(const GameState& s) {
  return noPlayableCard(s, computerFirst, computerLast) == 1;
}

}  // namespace mevracard
