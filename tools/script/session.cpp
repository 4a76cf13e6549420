#include "script/session.h"

#include <iostream>

#include "script/values.h"

namespace mevracard::script {

void print(std::string_view line) { std::cout << line << '\n'; }

Session::Session() : desktop(print) {}

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

MainWindow& Session::window() {
  if (!program_) throw ScriptError("the program has not started");
  return program_->window();
}

const Names& Session::names() {
  (void)window();
  return *names_;
}

}  // namespace mevracard::script
