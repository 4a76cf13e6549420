#include "ui/news.h"

#include <utility>

#include "ui/spoken_cards.h"
#include "ui/spoken_prompts.h"

namespace mevracard {

News::Told News::all(const GameState& s) {
  Told all;
  all.hands = s.openings > 0;
  all.laid = s.laidCount;
  all.computersPasses = s.passes[Side::Computer];
  all.announcement = s.announcement;
  if (s.choiceOpen) all.choice = s.playCard;
  if (s.demo.busy) all.shown = s.playCard;
  if (s.sizePanelOpen) all.size = s.tableSize;
  all.pass = s.passAwaitsOk;
  all.over = s.gameOver;
  all.demonstration = s.tutorial.running;
  return all;
}

void News::startAnew() {
  const Told before = std::exchange(told_, {});
  told_.size = before.size;
  told_.demonstration = before.demonstration;
  moves_.clear();
  laid_ = false;
}

void News::note(const GameState& s, bool playerActed) {
  if (s.laidCount < told_.laid) startAnew();
  if (std::exchange(refusals_, s.refusals) != s.refusals) {
    noteMoves(s);  // before the refusal
    moves_ += nameOf(s.card(s.playCard)) + " does not fit. ";
  }
  // A pass selects a card too, of which nobody is told.
  if (std::exchange(selected_, s.selectedCard) != s.selectedCard) picked_ = playerActed;
  told_.pass = told_.pass && s.passAwaitsOk;
  answerIsDue_ = answerIsDue_ || playerActed;
}

void News::noteMoves(const GameState& s) {
  if (!told_.hands && s.openings > 0) moves_ += "New game. " + dealtHands(s);
  const std::string laid = laidCards(s, told_.laid);
  moves_ += laid;
  laid_ = laid_ || !laid.empty();
  told_.hands = s.openings > 0;
  told_.laid = s.laidCount;
}

std::string News::tell(const GameState& s) {
  const Told now = all(s);
  noteMoves(s);
  if (told_.size && !now.size) answerIsDue_ = true;
  std::string words;
  if (told_.demonstration && !now.demonstration && !now.over) words += demonstrationEnds();
  if (!told_.demonstration && now.demonstration) words += demonstrationBegins();
  words += moves_;
  // Else a message box has told it.
  if (now.over && now.computersPasses > told_.computersPasses) words += "Computer passes. ";
  if (laid_) words += openNumbers(s);
  words += now.choice ? selection(s) + situation(s, now) : situation(s, now) + selection(s);
  if (words.empty() && answerIsDue_) words = prompt(s);
  told_ = now;
  moves_.clear();
  laid_ = picked_ = answerIsDue_ = false;
  return words;
}

std::string News::selection(const GameState& s) const {
  if (!picked_ || s.selectedCard >= handSize) return "";
  return s.card(s.selectedCard).held ? cardInHand(s, s.selectedCard) + ". "
                                     : "No card is selected. ";
}

std::string News::ending(const GameState& s) const {
  return resultWords(s) + (told_.demonstration ? demonstrationEnds() : "");
}

std::string News::situation(const GameState& s, const Told& now) const {
  if (now.over && !told_.over) return ending(s);
  if (now.size && now.size != told_.size) {
    return told_.size ? std::to_string(*now.size) + ". " : panelWords(s);
  }
  if (now.over) return "";
  if (now.pass) return told_.pass ? "" : passWords();
  if (now.choice) return now.choice == told_.choice ? "" : choiceWords(s);
  if (now.shown) return now.shown == told_.shown ? "" : shownCard(s);
  return laid_ || now.announcement != told_.announcement ? turnWords(s) : "";
}

}  // namespace mevracard
