#include "play/computer_turn.h"

#include "ai/selection.h"
#include "game/rules.h"
#include "play/choice.h"
#include "play/ending.h"
#include "play/passing.h"
#include "play/placement.h"
#include "play/status.h"

namespace mevracard {

namespace {

void lay(MainWindow& w, const Move& move) {
  const bool leftBottom = move.end == End::LeftBottom;
  if (leftBottom) w.state.computerAimsLeftBottom = true;
  w.card(move.card).uncover();
  layCard(w, move.card);
  if (leftBottom) w.state.computerAimsLeftBottom = false;
}

/// Rule G, the whole of computer level 1.
void layWhateverFits(MainWindow& w, Scan scan) {
  GameState& s = w.state;
  // QUIRK-09: the scan goes on after a card was laid, so one turn lays every card that fits when it
  // is met, while "Rest of Card" drops by one. One would expect one card a turn and a true count;
  // the player sees several cards appear at once. Meant.
  for (const int card : scanned(Side::Computer, scan)) {
    s.playCard = card;
    if (s.card(card).held && fits(s, card)) lay(w, {card, std::nullopt});
  }
}

void layByLevel(MainWindow& w) {
  GameState& s = w.state;
  if (s.tutorial.running) {
    s.tutorial.nextIsComputers = false;
    announce(w, Announcement::YourTurn);
  }
  --s.cardsLeft[Side::Computer];
  const Scan scan = scanFor(w.desktop.random());
  if (s.computerLevel == 2) {
    if (const auto move = chooseTactically(s, scan)) {
      lay(w, *move);
      return;
    }
  }
  layWhateverFits(w, scan);
}

/// QUIRK-11: a computer that cannot move either counts its pass before the deadlock, without the
/// message that goes with a pass. Meant.
void pass(MainWindow& w) {
  GameState& s = w.state;
  s.computerPassed = true;
  ++s.passes[Side::Computer];
  if (mustPass(s, Side::Player)) {
    deadlock(w);
  } else {
    announceComputersPass(w);
  }
}

void lookWhetherPlayerCanAnswer(MainWindow& w) {
  if (!mustPass(w.state, Side::Player)) return;
  if (mustPass(w.state, Side::Computer)) {
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
  w.state.danger = noNumber;
  if (mustPass(w.state, Side::Computer)) {
    pass(w);
    return;
  }
  layByLevel(w);
  lookWhetherPlayerCanAnswer(w);
  closeComputersTurn(w);
}

}  // namespace mevracard
