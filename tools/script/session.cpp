#include "script/session.h"

#include <iostream>

#include "script/overview.h"
#include "script/values.h"

namespace mevracard::script {

void print(std::string_view line) { std::cout << line << '\n'; }

Session::Session()
    : desktop([this](std::string_view line) {
        tellState(line);  // what lies behind a message
        print(line);
      }) {}

void Session::start() {
  names_.reset();
  program_.emplace(desktop);
  names_.emplace(program_->window());
  window().stackedDeck = stackedDeck_;
  program_->start();
}

void Session::stackDeck(const std::optional<Deck>& deck) {
  stackedDeck_ = deck;
  if (program_) window().stackedDeck = deck;
}

void Session::joinPlayCard() {
  if (!program_) return;
  TableState& s = window().state;
  int& offered = s.lastOffer.card;
  // They were all the same; the one that differs now is the new one.
  const int changed = s.choiceCard != offered && s.choiceCard != s.demo.card  ? s.choiceCard
                      : s.demo.card != offered && s.demo.card != s.choiceCard ? s.demo.card
                                                                              : offered;
  offered = s.choiceCard = s.demo.card = window().game.mind.lookedAt.value_or(changed);
  window().game.mind.lookedAt.reset();
}

void Session::tellState(std::string_view why) {
  if (watched && names_) print("state " + digest(*this) + " " + std::string(why));
  desktop.glided.clear();
}

MainWindow& Session::window() {
  if (!program_) throw ScriptError("the program has not started");
  return program_->window();
}

const Names& Session::names() {
  (void)window();
  return *names_;
}

}  // namespace mevracard::script
