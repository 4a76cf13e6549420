#include "play/game_menu.h"

#include "play/new_game.h"
#include "play/statistics.h"
#include "texts/messages.h"

namespace mevracard {

namespace {

void countAbortedGame(MainWindow& w) {
  if (w.game.ending.over) return;
  w.say(abortMessage);
  countResult(w, GameResult::Lost);
}

}  // namespace

void chooseNewGame(MainWindow& w) {
  countAbortedGame(w);
  startAnotherGame(w);
}

void chooseExit(MainWindow& w) {
  countAbortedGame(w);
  w.desktop.end();
}

void endBySystem(MainWindow& w) {
  // A loss like any other, but nobody is there to be told.
  if (!w.game.ending.over) countResult(w, GameResult::Lost);
  w.desktop.end();
}

}  // namespace mevracard
