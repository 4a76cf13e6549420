#include "game/rules.h"

#include <algorithm>

namespace mevracard {

bool fitsAt(const Game& game, int card, End end) {
  return game.card(card).bears(game.chain.openNumber[end]);
}

bool fits(const Game& game, int card) {
  return fitsAt(game, card, End::RightTop) || fitsAt(game, card, End::LeftBottom);
}

std::optional<End> firstFit(const Game& game, int card) {
  for (const End end : {End::RightTop, End::LeftBottom}) {
    if (fitsAt(game, card, end)) return end;
  }
  return std::nullopt;
}

std::optional<End> endFor(const Game& game, int card) {
  // QUIRK-07: a card that fits the Right/Top end alone is refused while Left/Bottom is asked for.
  // One would expect it at the end it fits; the player's card stays in the hand.
  const auto& aims = game.aimsLeftBottom;
  const bool rightAllowed = !aims[Side::Player] && !aims[Side::Computer];
  if (rightAllowed && fitsAt(game, card, End::RightTop)) return End::RightTop;
  if (fitsAt(game, card, End::LeftBottom)) return End::LeftBottom;
  return std::nullopt;
}

bool isOpen(const Game& game, int number) {
  const auto& open = game.chain.openNumber;
  return number == open[End::RightTop] || number == open[End::LeftBottom];
}

bool bearsBothOpenNumbers(const Game& game, int card) {
  const auto [upper, lower, held] = game.card(card);
  const int first = game.chain.openNumber[End::RightTop];
  const int second = game.chain.openNumber[End::LeftBottom];
  return (upper == first && lower == second) || (upper == second && lower == first);
}

bool makesSameNumber(const Game& game, int card) {
  return !game.card(card).isDouble() && bearsBothOpenNumbers(game, card);
}

bool noneFits(const Game& game, std::span<const int> cards) {
  return std::none_of(cards.begin(), cards.end(),
                      [&](int card) { return game.card(card).held && fits(game, card); });
}

bool mustPass(const Game& game, Side side) { return noneFits(game, handOf(side)); }

}  // namespace mevracard
