#include "ui/news.h"

#include <utility>

#include "ui/spoken_cards.h"
#include "ui/spoken_prompts.h"

namespace mevracard {

News::Told News::all(const Game& game, const TableState& state) {
  Told all;
  all.hands = game.chain.openings > 0;
  all.laid = static_cast<int>(game.chain.laid.size());
  all.computersPasses = game.counts.passes[Side::Computer];
  all.announcement = state.announcement;
  if (state.choiceOpen) all.choice = state.choiceCard;
  if (state.demo.busy) all.shown = state.demo.card;
  if (state.sizePanelOpen) all.size = state.tableSize;
  all.pass = state.passAwaitsOk;
  all.over = game.ending.over;
  all.tutorial = state.tutorial.running;
  return all;
}

void News::startAnew() {
  const Told before = std::exchange(told_, {});
  told_.size = before.size;
  told_.tutorial = before.tutorial;
  moves_.clear();
  laid_ = false;
}

void News::note(const Game& game, const TableState& state, bool playerActed) {
  if (static_cast<int>(game.chain.laid.size()) < told_.laid) startAnew();
  if (std::exchange(refusals_, state.refusals) != state.refusals) {
    noteMoves(game);  // before the refusal
    moves_ += nameOf(game.card(state.lastOffer.card)) + " does not fit. ";
  }
  // A pass selects a card too, of which nobody is told.
  if (std::exchange(selected_, state.selectedCard) != state.selectedCard) picked_ = playerActed;
  told_.pass = told_.pass && state.passAwaitsOk;
  answerIsDue_ = answerIsDue_ || playerActed;
}

void News::noteMoves(const Game& game) {
  if (!told_.hands && game.chain.openings > 0) moves_ += "New game. " + dealtHands(game);
  const std::string laid = laidCards(game, told_.laid);
  moves_ += laid;
  laid_ = laid_ || !laid.empty();
  told_.hands = game.chain.openings > 0;
  told_.laid = static_cast<int>(game.chain.laid.size());
}

std::string News::tell(const Game& game, const TableState& state) {
  const Told now = all(game, state);
  noteMoves(game);
  if (told_.size && !now.size) answerIsDue_ = true;
  std::string words;
  if (told_.tutorial && !now.tutorial && !now.over) words += tutorialEnds();
  if (!told_.tutorial && now.tutorial) words += tutorialBegins();
  words += moves_;
  // Else a message box has told it.
  if (now.over && now.computersPasses > told_.computersPasses) words += "Computer passes. ";
  if (laid_) words += openNumbers(game.chain);
  words += situation(game, state, now) + selection(game, state);
  if (words.empty() && answerIsDue_) words = prompt(game, state);
  told_ = now;
  moves_.clear();
  laid_ = picked_ = answerIsDue_ = false;
  return words;
}

std::string News::selection(const Game& game, const TableState& state) const {
  // The question names its card, and nobody selects one after the end.
  const bool isSaid = picked_ && !state.choiceOpen && !game.ending.over;
  if (!isSaid || state.selectedCard >= handSize) return "";
  return game.card(state.selectedCard).held ? cardInHand(game, state.selectedCard) + ". "
                                            : "No card is selected. ";
}

std::string News::ending(const Game& game) const {
  return resultWords(game) + (told_.tutorial ? tutorialEnds() : "");
}

std::string News::situation(const Game& game, const TableState& state, const Told& now) const {
  if (now.over && !told_.over) return ending(game);
  if (now.size && now.size != told_.size) {
    return told_.size ? std::to_string(*now.size) + ". " : panelWords(state);
  }
  if (now.over) return "";
  if (now.pass) return told_.pass ? "" : passWords(state);
  if (now.choice) return now.choice == told_.choice ? "" : choiceWords(game, state);
  if (now.shown) return now.shown == told_.shown ? "" : shownCard(game, state.demo.card);
  return laid_ || now.announcement != told_.announcement ? turnWords(state) : "";
}

}  // namespace mevracard
