#include "play/opening.h"

#include "game/moves.h"
#include "play/placement.h"
#include "play/status.h"
#include "play/tips.h"
#include "texts/tip_text.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

constexpr int firstStepDelay = 1000;  ///< of the tutorial

void showDoubleZero(MainWindow& w, int slot) {
  // QUIRK-04: it glides towards the place of the last card of the game before, and not at all when
  // the player's hand fits none of that game's last numbers. One would expect a glide to the
  // centre; the player sees the 0-0 jump there from elsewhere.
  glideCard(w, slot);
  putAt(w.card(slot).frame, chainPlace(End::RightTop, openingPosition, 0), w.scale());
  w.card(slot).paintNumbers(handColour);
  w.card(slot).uncover();
}

void giveTurnToPlayer(MainWindow& w) {
  announce(w, Announcement::YourTurn);
  appendGeneralTip(w);
  showStatusInFront(w);
}

void giveTurnToComputer(MainWindow& w) {
  announce(w, Announcement::ComputersTurn);
  w.state.tutorial.computerWaitsForNext = false;
  w.state.tutorial.nextIsComputers = false;
  showStatusInFront(w);
  w.state.tipText += openingAnsweredTip();
}

}  // namespace

Side openWithDoubleZero(MainWindow& w) {
  TableState& s = w.state;
  s.demo.done = true;
  s.tipText = tipHeading() + openingTip();
  const auto slot = doubleZero(w.game);
  if (slot) showDoubleZero(w, *slot);
  const Side next = openChain(w.game, slot);
  s.lastOffer = {slot.value_or(s.lastOffer.card), next == Side::Computer};
  w.form.giveFocus(w.discard);
  if (next == Side::Player) {
    giveTurnToPlayer(w);
  } else {
    giveTurnToComputer(w);
  }
  s.selectedCard = noSelection;
  if (s.tutorial.untilFirstCard) w.timer.arm(firstStepDelay);
  return next;
}

}  // namespace mevracard
