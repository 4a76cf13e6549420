#include "play/computer_turn.h"

#include "ai/computer_moves.h"
#include "game/moves.h"
#include "game/rules.h"
#include "play/choice.h"
#include "play/ending.h"
#include "play/passing.h"
#include "play/placement.h"
#include "play/status.h"

namespace mevracard {

namespace {

void layForComputer(MainWindow& w, const Move& move) {
  const bool leftBottom = move.end == End::LeftBottom;
  if (leftBottom) w.game.aimsLeftBottom[Side::Computer] = true;
  w.card(move.card).uncover();
  layCard(w, move.card, Side::Computer);
  if (leftBottom) w.game.aimsLeftBottom[Side::Computer] = false;
}

void layComputersCards(MainWindow& w) {
  TableState& s = w.state;
  if (s.tutorial.running) {
    s.tutorial.nextIsComputers = false;
    announce(w, Announcement::YourTurn);
  }
  countComputersTurn(w.game);
  const Scan scan = scanFor(w.desktop.random());
  moveForComputer(w.game, scan, [&w](const Move& move) { layForComputer(w, move); });
}

/// QUIRK-11: a computer that cannot move either counts its pass before the deadlock, without the
/// message that goes with a pass.
void passForComputer(MainWindow& w) {
  pass(w.game, Side::Computer);
  if (mustPass(w.game, Side::Player)) {
    deadlock(w);
  } else {
    announceComputersPass(w);
  }
}

void lookWhetherPlayerCanAnswer(MainWindow& w) {
  if (!mustPass(w.game, Side::Player)) return;
  if (mustPass(w.game, Side::Computer)) {
    deadlock(w);
  } else {
    announcePlayersPass(w);
  }
}

}  // namespace

void takeComputersTurn(MainWindow& w) {
  w.timer.disarm();
  closeChoice(w);  // the player's choice was about the numbers as they are now
  w.form.giveFocus(w.discard);
  w.game.mind.danger = noNumber;
  if (mustPass(w.game, Side::Computer)) {
    passForComputer(w);
    return;
  }
  layComputersCards(w);
  lookWhetherPlayerCanAnswer(w);
  closeTurn(w);
}

}  // namespace mevracard
