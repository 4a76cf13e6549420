#include "simulation/table_watch.h"

#include <algorithm>
#include <bitset>
#include <numeric>

#include "game/rules.h"
#include "ui/choice.h"

namespace mevracard::simulate {

namespace {

int heldIn(const GameState& s, int lo, int hi) {
  return std::accumulate(s.held.begin() + lo, s.held.begin() + hi + 1, 0);
}

/// All numbers are 0 to 6 and no pair comes twice.
bool isDoubleSixSet(const GameState& s) {
  std::bitset<49> pairs;
  for (std::size_t i = 0; i < cardCount; ++i) {
    const auto [low, high] = std::minmax(s.a[i], s.b[i]);
    if (low < 0 || high > 6) return false;
    pairs.set(static_cast<std::size_t>(7 * low + high));
  }
  return pairs.count() == cardCount;
}

bool isForChoice(const GameState& s, int card) {
  return card <= playerLast && s.held.at(static_cast<std::size_t>(card)) == 1 &&
         makesSameNumber(s, card);
}

bool isDoubleZero(const GameState& s, std::optional<int> card) {
  return card && isDouble(s, *card) && bears(s, *card, 0);
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
  if (s.lina + s.linb == 0) {  // a new game
    chain_.restart();
    open_ = {};
    surplus_ = 0;
    endCard_ = {s.k0, s.k0};
    if (!isDoubleZero(s, s.k0)) return "a game starts with the 0-0";
    if (s.theend == 1) return "a new game is not over";
  }
  int players = 0;
  int computers = 0;
  for (const LaidCard& card : chain_.cardsLaid(w_)) {
    const auto end = static_cast<std::size_t>(card.end);
    if (card.touching != open_[end]) return "a card touches the chain with a number that fits";
    open_[end] = card.opened;
    endCard_[end] = card.slot;
    ++(card.slot <= playerLast ? players : computers);
  }
  surplus_ += std::max(0, computers - 1);
  met_.computersExtraCards += std::max(0, computers - 1);
  met_.hurriedCards += replyWasDue_ ? players : 0;
  if (players > 1) return "the player lays one card at a time";
  if (players > 0 && computers > 0) return "an event is the move of one side";
  if (computers > 0 && !replyWasDue_ && !w_.lblHow.visible) return "the computer waits its turn";
  if (s.kotak != open_) return "the active numbers are those that the chain's ends show";
  if (s.k0 != endCard_[0] || s.k1 != endCard_[1]) return "k0 and k1 name the end cards";
  return nullptr;
}

const char* TableWatch::aboutCards() const {
  const GameState& s = w_.state;
  const int players = heldIn(s, playerFirst, playerLast);
  const int computers = heldIn(s, computerFirst, computerLast);
  if (!isDoubleSixSet(s)) return "the 28 cards are the double-six set";
  if (players != s.sisa[1]) return "the player's count is the player's held cards";
  if (computers + surplus_ != s.sisa[0]) return "the computer's count misses the extra cards only";
  if (players + computers + s.lina + s.linb + 1 != cardCount) return "every card is somewhere";
  for (std::size_t i = 0; i < cardCount; ++i) {
    if (s.held[i] != 0 && s.held[i] != 1) return "held is a flag";
    if (s.held[i] == 0 && w_.luar1[i].visible) return "a card on the table shows its face";
  }
  return nullptr;
}

const char* TableWatch::aboutTurn() const {
  const GameState& s = w_.state;
  const bool passAnnounced = w_.authormevra.ctrcom.visible;
  const bool tutorial = w_.lblHow.visible;
  if (s.selectedCard > playerLast && s.selectedCard != noSelection) {
    return "the player selects from the player's hand";
  }
  if (choiceIsOpen(w_) && !isForChoice(s, s.playCard)) {
    return "the choice is about a held card that makes the same number";
  }
  if (passAnnounced && (s.theend == 1 || !playerIsStuck(s))) {
    return "a pass is announced where there is one";
  }
  if (s.theend == 1) return w_.jam.enabled ? "nothing is pending after the end" : nullptr;
  const bool someoneGoesOn = w_.jam.enabled || passAnnounced || !playerIsStuck(s) || tutorial;
  if (!someoneGoesOn) return "a running game goes on";
  if (!w_.form.enabled && !passAnnounced && !w_.kalahmenang.form.visible) {
    return "a disabled window is given back";
  }
  const bool focused = w_.form.focus != nullptr && w_.form.focus->usable();
  return w_.form.enabled && !focused ? "the focus is somewhere" : nullptr;
}

void TableWatch::meet() {
  const GameState& s = w_.state;
  const bool newGame = s.lina + s.linb == 0;
  if (s.theend > theend_) {
    ++(w_.akhir[5].caption == "You win" ? met_.wins : met_.losses);
    met_.deadlocks += w_.akhir[0].visible ? 1 : 0;
  }
  met_.choices += choiceIsOpen(w_) && !choiceWasOpen_ ? 1 : 0;
  if (!newGame) {
    met_.computersPasses += s.sisa[2] - sisa_[2];
    met_.playersPasses += s.sisa[3] - sisa_[3];
  } else if (theend_ == 0 && sisa_[0] + sisa_[1] < 27) {
    ++met_.abandoned;
  }
  sisa_ = s.sisa;
  theend_ = s.theend;
  choiceWasOpen_ = choiceIsOpen(w_);
  replyWasDue_ = w_.jam.enabled;
}

}  // namespace mevracard::simulate
