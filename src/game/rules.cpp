#include "game/rules.h"

#include <algorithm>

namespace mevracard {

bool fitsAt(const Game& game, int card, End end) {
  return game.card(card).bears(game.chain.openNumber[end]);
}

bool fits(const Game& game, int card) {
  return fitsAt(game, card, End::RightTop) || fitsAt(game, card, End::LeftBottom);
}

std::optional<End> endFor(const Card& card, const PerEnd<int>& openNumber,
                          const PerSide<bool>& aimsLeftBottom) {
  // QUIRK-07: a card that fits the Right/Top end alone is refused while Left/Bottom is asked for.
  // One would expect it at the end it fits; the player's card stays in the hand.
  const bool rightAllowed = !aimsLeftBottom[Side::Player] && !aimsLeftBottom[Side::Computer];
  if (rightAllowed && card.bears(openNumber[End::RightTop])) return End::RightTop;
  if (card.bears(openNumber[End::LeftBottom])) return End::LeftBottom;
  return std::nullopt;
}

std::optional<End> endFor(const Game& game, int card) {
  return endFor(game.card(card), game.chain.openNumber, game.aimsLeftBottom);
}

bool bearsBothActiveNumbers(const Game& game, int card) {
  const auto [upper, lower, held] = game.card(card);
  const int first = game.chain.openNumber[End::RightTop];
  const int second = game.chain.openNumber[End::LeftBottom];
  return (upper == first && lower == second) || (upper == second && lower == first);
}

bool makesSameNumber(const Game& game, int card) {
  return !game.card(card).isDouble() && bearsBothActiveNumbers(game, card);
}

bool noneFits(const Game& game, std::span<const int> cards) {
  return std::none_of(cards.begin(), cards.end(),
                      [&](int card) { return game.card(card).held && fits(game, card); });
}

bool mustPass(const Game& game, Side side) { return noneFits(game, handOf(side)); }

}  // namespace mevracard
