#include "simulate/table_watch.h"

#include <algorithm>
#include <bitset>

#include "game/rules.h"

namespace mevracard::simulate {

namespace {

int heldBy(const GameState& s, Side side) {
  const auto hand = handOf(side);
  return static_cast<int>(
      std::count_if(hand.begin(), hand.end(), [&](int slot) { return s.card(slot).held; }));
}

int cardsLaid(const GameState& s) { return s.laidAt[End::RightTop] + s.laidAt[End::LeftBottom]; }

/// All numbers are 0 to 6 and no pair comes twice.
bool isDoubleSixSet(const GameState& s) {
  std::bitset<49> pairs;
  for (const Card& card : s.cards) {
    const auto [low, high] = std::minmax(card.upper, card.lower);
    if (low < 0 || high > 6) return false;
    pairs.set(static_cast<std::size_t>(7 * low + high));
  }
  return pairs.count() == cardCount;
}

bool isForChoice(const GameState& s, int card) {
  return ownerOf(card) == Side::Player && s.card(card).held && makesSameNumber(s, card);
}

bool isDoubleZero(const GameState& s, std::optional<int> card) {
  return card && s.card(*card).isDouble() && s.card(*card).bears(0);
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
  const GameState& s = w_.state;
  if (cardsLaid(s) == 0) {  // a new game
    chain_.restart();
    open_ = {};
    surplus_ = 0;
    endCard_ = {{s.endCard[End::RightTop], s.endCard[End::RightTop]}};
    if (!isDoubleZero(s, s.endCard[End::RightTop])) return "a game starts with the 0-0";
    if (s.gameOver) return "a new game is not over";
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
  if (computers > 0 && !replyWasDue_ && !s.tutorial.running) return "the computer waits its turn";
  if (s.openNumber != open_) return "the active numbers are those that the chain's ends show";
  if (s.endCard != endCard_) return "the end cards are the last ones laid there";
  return nullptr;
}

const char* TableWatch::aboutCards() const {
  const GameState& s = w_.state;
  const int players = heldBy(s, Side::Player);
  const int computers = heldBy(s, Side::Computer);
  if (!isDoubleSixSet(s)) return "the 28 cards are the double-six set";
  if (players != s.cardsLeft[Side::Player]) return "the player's count is the player's held cards";
  if (computers + surplus_ != s.cardsLeft[Side::Computer]) {
    return "the computer's count misses the extra cards only";
  }
  if (players + computers + cardsLaid(s) + 1 != cardCount) return "every card is somewhere";
  for (std::size_t i = 0; i < cardCount; ++i) {
    const bool covered = w_.cards[i].back.ground.visible;
    if (!s.cards[i].held && covered) return "a card on the table shows its face";
  }
  return nullptr;
}

const char* TableWatch::aboutTurn() const {
  const GameState& s = w_.state;
  if (s.selectedCard >= handSize && s.selectedCard != noSelection) {
    return "the player selects from the player's hand";
  }
  if (s.choiceOpen && !isForChoice(s, s.playCard)) {
    return "the choice is about a held card that makes the same number";
  }
  if (s.passAwaitsOk && (s.gameOver || !mustPass(s, Side::Player))) {
    return "a pass is announced where there is one";
  }
  if (s.gameOver) return w_.timer.enabled ? "nothing is pending after the end" : nullptr;
  const bool someoneGoesOn =
      w_.timer.enabled || s.passAwaitsOk || !mustPass(s, Side::Player) || s.tutorial.running;
  if (!someoneGoesOn) return "a running game goes on";
  if (!w_.form.enabled && !s.passAwaitsOk && !w_.statistics.form.visible) {
    return "a disabled window is given back";
  }
  const bool focused = w_.form.focus != nullptr && w_.form.focus->usable();
  return w_.form.enabled && !focused ? "the focus is somewhere" : nullptr;
}

void TableWatch::meet() {
  const GameState& s = w_.state;
  met_.games += s.gameOver && !before_.gameOver ? 1 : 0;
  met_.choices += s.choiceOpen && !before_.choiceOpen ? 1 : 0;
  met_.passes += s.passAwaitsOk && !before_.passAwaitsOk ? 1 : 0;
  before_ = s;
  replyWasDue_ = w_.timer.enabled;
}

}  // namespace mevracard::simulate
