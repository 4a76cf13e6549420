#include "game/rules.h"

#include <algorithm>

namespace mevracard {

bool fitsAt(const GameState& s, int card, End end) { return s.card(card).bears(s.openNumber[end]); }

bool fits(const GameState& s, int card) {
  return fitsAt(s, card, End::RightTop) || fitsAt(s, card, End::LeftBottom);
}

std::optional<End> endFor(const GameState& s, int card) {
  // QUIRK-07: a card that fits the Right/Top end alone is refused while Left/Bottom is asked for.
  // One would expect it at the end it fits; the player's card stays in the hand. Meant.
  const bool rightAllowed = !s.playerAimsLeftBottom && !s.computerAimsLeftBottom;
  if (rightAllowed && fitsAt(s, card, End::RightTop)) return End::RightTop;
  if (fitsAt(s, card, End::LeftBottom)) return End::LeftBottom;
  return std::nullopt;
}

bool bearsBothActiveNumbers(const GameState& s, int card) {
  const auto [upper, lower, held] = s.card(card);
  const int first = s.openNumber[End::RightTop];
  const int second = s.openNumber[End::LeftBottom];
  return (upper == first && lower == second) || (upper == second && lower == first);
}

bool makesSameNumber(const GameState& s, int card) {
  return !s.card(card).isDouble() && bearsBothActiveNumbers(s, card);
}

bool noneFits(const GameState& s, std::span<const int> cards) {
  return std::none_of(cards.begin(), cards.end(),
                      [&](int card) { return s.card(card).held && fits(s, card); });
}

bool mustPass(const GameState& s, Side side) { return noneFits(s, handOf(side)); }

}  // namespace mevracard
