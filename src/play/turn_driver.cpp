#include "play/turn_driver.h"

#include "play/computer_turn.h"
#include "play/demonstration.h"
#include "play/status.h"

namespace mevracard {

namespace {

/// No move was demonstrated since the opening, so there is none to go on with.
void giveTurnToPlayer(MainWindow& w) {
  announce(w, Announcement::YourTurn);
  raiseStatus(w);
  w.state.tutorial.computerWaitsForNext = false;
}

}  // namespace

void tick(MainWindow& w) {
  const GameState& s = w.state;
  // While another window has disabled this one no move is made; the timer goes on and comes again.
  if (!w.form.enabled) return;
  if (s.tutorial.nextIsComputers) {
    if (s.demo.done) {
      giveTurnToPlayer(w);
    } else {
      demonstrate(w);
    }
  } else if (!s.tutorial.computerWaitsForNext) {
    announce(w, Announcement::YourTurn);
    takeComputersTurn(w);
  }
}

}  // namespace mevracard
