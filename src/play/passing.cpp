#include "play/passing.h"

#include "game/moves.h"
#include "game/rules.h"
#include "play/ending.h"
#include "play/status.h"
#include "play/tips.h"
#include "texts/messages.h"
#include "texts/tip_text.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

constexpr int secondTurnDelay = 2000;
constexpr int tipsTop = 1000;
constexpr int tipsGap = 30;

/// QUIRK-12: card 13 is selected without being marked. One would expect no selection; Enter or
/// Space lays card 13 if it is held and fits, and 'p' goes on from there.
void selectLastCard(MainWindow& w) {
  const int before = w.state.selectedCard;
  if (before < handSize) w.card(before).paintNumbers(handColour);
  w.state.selectedCard = 13;
}

/// The last words were about no pass, and both sides can go on.
bool turnWasPlain(const MainWindow& w) {
  return w.state.announcement != Announcement::ComputerPasses &&
         w.state.announcement != Announcement::YouPass && !mustPass(w.game, Side::Player) &&
         !mustPass(w.game, Side::Computer) && w.game.counts.cardsLeft[Side::Computer] != 0 &&
         w.game.counts.cardsLeft[Side::Player] != 0;
}

/// Right of the card at the Right/Top end, which stays in view; where the screen has no room there,
/// the desktop finds another place.
void placeTips(MainWindow& w) {
  const Frame& endCard = w.card(w.game.chain.endCard[End::RightTop].value_or(0)).frame;
  w.about.form.placed = true;
  w.about.form.left = endCard.left + endCard.width + tipsGap;
  w.about.form.top = tipsTop;
}

/// Opens the tips; nothing but their OK is to be pressed.
void waitForOk(MainWindow& w) {
  w.state.passAwaitsOk = true;
  placeTips(w);
  w.about.ok.visible = true;
  showTips(w);
  w.about.form.giveFocus(w.about.ok);
  w.form.enabled = false;
}

}  // namespace

void announceComputersPass(MainWindow& w) {
  bringStatusToFront(w);
  announce(w, Announcement::ComputerPasses);
  selectLastCard(w);
  w.say(computerPassesMessage);
  announce(w, Announcement::YourTurn);
  if (w.state.tutorial.running) w.state.tutorial.nextIsComputers = false;
  resetTip(w);
  appendTip(w, computerPassTip);
  closeTurn(w);
}

void announcePlayersPass(MainWindow& w) {
  announce(w, Announcement::YouPass);
  if (w.state.tutorial.running) w.state.tutorial.nextIsComputers = true;
  selectLastCard(w);
  appendTip(w, playerPassTip);
  waitForOk(w);
}

void acknowledgePass(MainWindow& w) {
  TableState& s = w.state;
  s.passAwaitsOk = false;
  w.about.ok.visible = false;
  w.form.enabled = true;
  w.status.visible = true;
  w.desktop.hide(w.about.form);
  w.timer.arm(secondTurnDelay);
  announce(w, Announcement::ComputersTurnAgain);
  s.tipText = tipHeading() + replayTip();
  pass(w.game, Side::Player);
  closeTurn(w);
}

void closeTurn(MainWindow& w) {
  // QUIRK-10: a deadlock that was decided just before is counted a second time here. One would
  // expect one loss a game; the statistics count two.
  if (w.game.counts.cardsLeft[Side::Computer] == 0) computerHasWon(w);
  if (turnWasPlain(w)) appendGeneralTip(w);
  w.form.giveFocus(w.tutorial.next);
}

}  // namespace mevracard
