#include "game/moves.h"

#include <algorithm>
#include <utility>

#include "game/rules.h"
#include "game/scoring.h"

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

std::optional<int> doubleZero(const Game& game) {
  const auto found = std::find_if(game.cards.begin(), game.cards.end(),
                                  [](const Card& c) { return c.sum() == 0; });
  if (found == game.cards.end()) return std::nullopt;
  return static_cast<int>(found - game.cards.begin());
}

Side openChain(Game& game, std::optional<int> doubleZero) {
  const Side opener = doubleZero ? ownerOf(*doubleZero) : Side::Player;
  game.counts.cardsLeft[opener] = handSize - 1;
  if (doubleZero) {
    Chain& chain = game.chain;
    chain.laid.reserve(cardCount);
    game.card(*doubleZero).held = false;
    chain.endCard = {{doubleZero, doubleZero}};
    chain.openNumber = {};
    ++chain.openings;
    note(chain, {*doubleZero, End::RightTop});
  }
  return opener == Side::Player ? Side::Computer : Side::Player;
}

std::optional<Placement> lay(Game& game, int card, Side by) {
  const auto end = endFor(game, card);
  if (!end) return std::nullopt;
  Chain& chain = game.chain;
  const Laying laying = layingOf(*end, ++chain.laidAt[*end]);
  turn(game.card(card), chain.openNumber[*end], laying.upperTouches);
  game.card(card).held = false;
  note(chain, {card, *end});
  game.aimsLeftBottom[Side::Player] = false;
  if (by == Side::Player) --game.counts.cardsLeft[Side::Player];
  return Placement{*end, laying, std::exchange(chain.endCard[*end], card)};
}

void countComputersTurn(Game& game) { --game.counts.cardsLeft[Side::Computer]; }

void pass(Game& game, Side side) {
  ++game.counts.passes[side];
  if (side == Side::Computer) game.mind.hasPassed = true;
}

GameResult decideDeadlock(Game& game) {
  const bool won = playerWinsDeadlock(leftover(game, Side::Player), leftover(game, Side::Computer));
  game.ending.deadlock = true;
  return game.ending.result = won ? GameResult::Won : GameResult::Lost;
}

GameResult winBy(Game& game, Side side) {
  game.ending.deadlock = false;
  return game.ending.result = side == Side::Player ? GameResult::Won : GameResult::Lost;
}

}  // namespace mevracard
