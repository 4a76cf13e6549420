#include "game/chain.h"

#include <utility>

namespace mevracard {

namespace {

/// Turns the card so that its matching number touches the chain, and opens the other number.
void turn(Card& card, int& openNumber, bool upperTouches) {
  int& outward = upperTouches ? card.lower : card.upper;
  int& touching = upperTouches ? card.upper : card.lower;
  if (outward == openNumber) std::swap(outward, touching);
  openNumber = outward;
}

void note(Chain& chain, LaidCard laid) {
  // A script may lay a card more than once.
  if (chain.laid.size() < cardCount) chain.laid.push_back(laid);
}

}  // namespace

void openChain(Game& game, int card) {
  game.card(card).held = false;
  game.chain.endCard = {{card, card}};
  game.chain.openNumber = {{game.card(card).upper, game.card(card).lower}};
  ++game.chain.openings;
  note(game.chain, {card, End::RightTop});
}

Laying joinChain(Game& game, int card, End end) {
  const Laying laying = layingOf(end, ++game.chain.laidAt[end]);
  turn(game.card(card), game.chain.openNumber[end], laying.upperTouches);
  game.card(card).held = false;
  game.chain.endCard[end] = card;
  note(game.chain, {card, end});
  return laying;
}

}  // namespace mevracard
