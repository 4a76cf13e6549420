#include "simulate/table_watch.h"

#include <algorithm>
#include <bitset>

#include "game/rules.h"

namespace mevracard::simulate {

namespace {

int heldBy(const Game& game, Side side) {
  const auto hand = handOf(side);
  return static_cast<int>(
      std::count_if(hand.begin(), hand.end(), [&](int slot) { return game.card(slot).held; }));
}

int cardsLaid(const Game& game) {
  return game.chain.laidAt[End::RightTop] + game.chain.laidAt[End::LeftBottom];
}

/// All numbers are 0 to 6 and no pair comes twice.
bool isDoubleSixSet(const Game& game) {
  std::bitset<49> pairs;
  for (const Card& card : game.cards) {
    const auto [low, high] = std::minmax(card.upper, card.lower);
    if (low < 0 || high > 6) return false;
    pairs.set(static_cast<std::size_t>(7 * low + high));
  }
  return pairs.count() == cardCount;
}

bool isForChoice(const Game& game, int card) {
  return ownerOf(card) == Side::Player && game.card(card).held && makesSameNumber(game, card);
}

bool isDoubleZero(const Game& game, std::optional<int> card) {
  return card && game.card(*card).isDouble() && game.card(*card).bears(0);
}

}  // namespace

const char* TableWatch::complaint() {
  const char* found = aboutChain();
  if (found == nullptr) found = aboutCards();
  if (found == nullptr) found = aboutTurn();
  meet();
  return found;
}

const char* TableWatch::aboutChain() {
  const Game& game = w_.game;
  if (cardsLaid(game) == 0) {  // a new game
    chain_.restart();
    open_ = {};
    surplus_ = 0;
    endCard_ = {{game.chain.endCard[End::RightTop], game.chain.endCard[End::RightTop]}};
    if (!isDoubleZero(game, game.chain.endCard[End::RightTop])) return "a game starts with the 0-0";
    if (game.ending.over) return "a new game is not over";
  }
  int players = 0;
  int computers = 0;
  for (const JoinedCard& card : chain_.cardsLaid(w_)) {
    if (card.touching != open_[card.end]) return "a card touches the chain with a number that fits";
    open_[card.end] = card.opened;
    endCard_[card.end] = card.slot;
    ++(ownerOf(card.slot) == Side::Player ? players : computers);
  }
  surplus_ += std::max(0, computers - 1);
  if (players > 1) return "the player lays one card at a time";
  if (players > 0 && computers > 0) return "an event is the move of one side";
  if (computers > 0 && !replyWasDue_ && !w_.state.tutorial.running)
    return "the computer waits its turn";
  if (game.chain.openNumber != open_)
    return "the open numbers are those that the chain's ends show";
  if (game.chain.endCard != endCard_) return "the end cards are the last ones laid there";
  return nullptr;
}

const char* TableWatch::aboutCards() const {
  const Game& game = w_.game;
  const int players = heldBy(game, Side::Player);
  const int computers = heldBy(game, Side::Computer);
  if (!isDoubleSixSet(game)) return "the 28 cards are the double-six set";
  if (players != game.counts.cardsLeft[Side::Player])
    return "the player's count is the player's held cards";
  if (computers + surplus_ != game.counts.cardsLeft[Side::Computer]) {
    return "the computer's count misses the extra cards only";
  }
  if (players + computers + cardsLaid(game) + 1 != cardCount) return "every card is somewhere";
  for (std::size_t i = 0; i < cardCount; ++i) {
    const bool covered = w_.cards[i].back.ground.visible;
    if (!game.cards[i].held && covered) return "a card on the table shows its face";
  }
  return nullptr;
}

const char* TableWatch::aboutTurn() const {
  const Game& game = w_.game;
  if (w_.state.selectedCard >= handSize && w_.state.selectedCard != noSelection) {
    return "the player selects from the player's hand";
  }
  if (w_.state.choiceOpen && !isForChoice(game, w_.state.choiceCard)) {
    return "the choice is about a held card that makes the same number";
  }
  if (w_.state.passAwaitsOk && (game.ending.over || !mustPass(game, Side::Player))) {
    return "a pass is announced where there is one";
  }
  if (game.ending.over) return w_.timer.enabled ? "nothing is pending after the end" : nullptr;
  const bool someoneGoesOn = w_.timer.enabled || w_.state.passAwaitsOk ||
                             !mustPass(game, Side::Player) || w_.state.tutorial.running;
  if (!someoneGoesOn) return "a running game goes on";
  if (!w_.form.enabled && !w_.state.passAwaitsOk && !w_.statistics.form.visible) {
    return "a disabled window is given back";
  }
  const bool focused = w_.form.focus != nullptr && w_.form.focus->usable();
  return w_.form.enabled && !focused ? "the focus is somewhere" : nullptr;
}

void TableWatch::meet() {
  const Game& game = w_.game;
  met_.games += game.ending.over && !over_ ? 1 : 0;
  met_.choices += w_.state.choiceOpen && !asked_ ? 1 : 0;
  met_.passes += w_.state.passAwaitsOk && !passed_ ? 1 : 0;
  over_ = game.ending.over;
  asked_ = w_.state.choiceOpen;
  passed_ = w_.state.passAwaitsOk;
  replyWasDue_ = w_.timer.enabled;
}

}  // namespace mevracard::simulate
