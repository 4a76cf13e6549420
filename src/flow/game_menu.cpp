#include "flow/game_menu.h"

#include "flow/new_game.h"
#include "store/recording.h"

namespace mevracard {

namespace {

void countAbortedGame(MainWindow& w) {
  if (w.state.theend != 0) return;
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

}  // namespace mevracard
