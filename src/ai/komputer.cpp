#include "ai/komputer.h"

#include "ai/passing.h"
#include "ai/selection.h"
#include "game/ending.h"
#include "game/placement.h"
#include "game/rules.h"
#include "ui/card_cover.h"
#include "ui/choice.h"

namespace mevracard {

namespace {

/// Lays the card `playCard`, at the Left/Bottom end if asked for, else at the first end it fits.
void lay(MainWindow& w, End end) {
  const bool below = end == End::LeftBottom;
  if (below) w.state.ngisor = 1;
  BukaCover(w);
  Cocok(w);
  if (below) w.state.ngisor = 0;
}

/// Pass G, the whole of computer level 1.
void layWhateverFits(MainWindow& w, ScanDirection scan) {
  GameState& s = w.state;
  // QUIRK-09: the scan goes on after a card was laid, so one turn lays every card that fits when it
  // is met, while "Rest of Card" drops by one. One would expect one card a turn and a true count;
  // the player sees several cards appear at once. Meant.
  scanHand(s, scan, [&](int j) {
    if (s.held[static_cast<std::size_t>(j)] == 1 && matchesAny(s, j)) lay(w, End::RightTop);
    return false;
  });
}

void layCard(MainWindow& w) {
  GameState& s = w.state;
  if (w.lblHow.visible) {
    s.demoMove = 0;
    w.showTurn(yourTurn);
  }
  --s.sisa[0];
  const ScanDirection scan = scanDirection(w.desktop.random());
  if (w.cl2.checked) {
    if (const auto selection = selectTactically(s, scan)) {
      lay(w, selection->end);
      return;
    }
  }
  layWhateverFits(w, scan);
}

/// QUIRK-11: a computer that cannot move either counts its pass before the deadlock, without the
/// message that goes with a pass. Meant.
void pass(MainWindow& w) {
  w.state.computerPassed = 1;
  ++w.state.sisa[2];
  if (playerIsStuck(w.state)) {
    deadlock(w);
  } else {
    announceComputersPass(w);
  }
}

}  // namespace

void komputer(MainWindow& w) {
  w.jam.disarm();
  closeChoice(w);  // the player's choice was about the numbers as they are now
  w.form.giveFocus(w.mulai);
  w.state.bahaya = noTacticalNumber;
  if (computerIsStuck(w.state)) {
    pass(w);
    return;
  }
  layCard(w);
  if (playerIsStuck(w.state)) {
    if (computerIsStuck(w.state)) {
      deadlock(w);
    } else {
      announcePlayersPass(w);
    }
  }
  lastmove(w);
}

}  // namespace mevracard
