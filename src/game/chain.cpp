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

void note(GameState& s, LaidCard laid) {
  // A script may lay a card more than once.
  if (s.laidCount < cardCount) s.laid.at(static_cast<std::size_t>(s.laidCount++)) = laid;
}

}  // namespace

void openChain(GameState& s, int card) {
  s.card(card).held = false;
  s.endCard = {{card, card}};
  s.openNumber = {{s.card(card).upper, s.card(card).lower}};
  ++s.openings;
  note(s, {card, End::RightTop});
}

Laying joinChain(GameState& s, int card, End end) {
  const Laying laying = layingOf(end, ++s.laidAt[end]);
  turn(s.card(card), s.openNumber[end], laying.upperTouches);
  s.card(card).held = false;
  s.endCard[end] = card;
  note(s, {card, end});
  s.layPosition = laying.position;
  s.layColumn = laying.column;
  return laying;
}

}  // namespace mevracard
