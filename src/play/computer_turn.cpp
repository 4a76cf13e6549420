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
  if (leftBottom) w.game.aimsLeftBottom[Side::Computer] = true;
  w.card(move.card).uncover();
  layCard(w, move.card);
  if (leftBottom) w.game.aimsLeftBottom[Side::Computer] = false;
}

/// Rule G, the whole of computer level 1.
void layWhateverFits(MainWindow& w, Scan scan) {
  TableState& s = w.state;
  // QUIRK-09: the scan goes on after a card was laid, so one turn lays every card that fits when it
  // is met, while "Rest of Card" drops by one. One would expect one card a turn and a true count;
  // the player sees several cards appear at once. Meant.
  for (const int card : scanned(Side::Computer, scan)) {
    s.playCard = card;
    if (w.game.card(card).held && fits(w.game, card)) lay(w, {card, std::nullopt});
  }
}

void layByLevel(MainWindow& w) {
  TableState& s = w.state;
  if (s.tutorial.running) {
    s.tutorial.nextIsComputers = false;
    announce(w, Announcement::YourTurn);
  }
  --w.game.counts.cardsLeft[Side::Computer];
  const Scan scan = scanFor(w.desktop.random());
  if (w.game.levels.computer == 2) {
    if (const auto move = chooseTactically(w.game, scan)) {
      lay(w, *move);
      return;
    }
  }
  layWhateverFits(w, scan);
}

/// QUIRK-11: a computer that cannot move either counts its pass before the deadlock, without the
/// message that goes with a pass. Meant.
void pass(MainWindow& w) {
  w.game.mind.hasPassed = true;
  ++w.game.counts.passes[Side::Computer];
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
    pass(w);
    return;
  }
  layByLevel(w);
  lookWhetherPlayerCanAnswer(w);
  closeComputersTurn(w);
}

}  // namespace mevracard
