#include "play/turn_driver.h"

#include "play/computer_turn.h"
#include "play/demonstrated_move.h"
#include "play/status.h"

namespace mevracard {

namespace {

/// QUIRK-41: before the first demonstrated move, the tick after a pass finds it done. One would
/// expect the line to name the computer; the player reads "Your Turn", and NEXT lets the computer
/// move.
void takeMoveForOver(MainWindow& w) {
  announce(w, Announcement::YourTurn);
  showStatusInFront(w);
  w.state.tutorial.computerWaitsForNext = false;
}

}  // namespace

void tick(MainWindow& w) {
  const TableState& s = w.state;
  // While another window has disabled this one no move is made; the timer goes on and comes again.
  if (!w.form.enabled) return;
  if (s.tutorial.nextIsComputers) {
    if (s.demo.done) {
      takeMoveForOver(w);
    } else {
      demonstrate(w);
    }
  } else if (!s.tutorial.computerWaitsForNext) {
    announce(w, Announcement::YourTurn);
    takeComputersTurn(w);
  }
}

}  // namespace mevracard
