#include "flow/game_menu.h"

#include "flow/new_game.h"
#include "store/recording.h"

namespace mevracard {

namespace {

bool gameIsRunning(const MainWindow& w) { return w.state.theend == 0; }

void countAbortedGame(MainWindow& w) {
  if (!gameIsRunning(w)) return;
  w.say("Aborting makes you lose this game");
  recordResult(w, RecordMode::Lost);
}

}  // namespace

void rg_Click(MainWindow& w) {
  countAbortedGame(w);
  w.state.firstDealDone = 1;
  Form_Load(w);
}

void exit_Click(MainWindow& w) {
  countAbortedGame(w);
  w.desktop.end();
}

void endBySystem(MainWindow& w) {
  // A loss like any other, but nobody is there to be told.
  if (gameIsRunning(w)) recordResult(w, RecordMode::Lost);
  w.desktop.end();
}

}  // namespace mevracard
