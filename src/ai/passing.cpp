#include "ai/passing.h"

#include "game/ending.h"
#include "game/rules.h"
#include "guide/tip_text.h"
#include "guide/tips.h"
#include "ui/about_commands.h"
#include "ui/card_cover.h"

namespace mevracard {

namespace {

constexpr std::string_view computerPasses = "Computer Passes!";
constexpr std::string_view youPass = "You Pass!";
constexpr int replayDelay = 2000;
constexpr int popupTop = 1000;
constexpr int popupGap = 30;

/// QUIRK-12: card 13 is selected without being marked. One would expect no selection; Enter or
/// Space lays card 13 if it is held and fits, and 'p' goes on from there. Meant.
void selectLastCard(MainWindow& w) {
  const auto before = static_cast<std::size_t>(w.state.selectedCard);
  if (before < handSize) paintNumbers(w, before, handColour);
  w.state.selectedCard = 13;
}

bool turnWasPlain(const MainWindow& w) {
  const GameState& s = w.state;
  return w.tanda.caption != computerPasses && w.tanda.caption != youPass && !playerIsStuck(s) &&
         !computerIsStuck(s) && s.sisa[0] != 0 && s.sisa[1] != 0;
}

}  // namespace

void announceComputersPass(MainWindow& w) {
  GameState& s = w.state;
  w.form.bringToFront(w.tanda);
  w.showStatus(computerPasses);
  selectLastCard(w);
  w.say("Computer Passes. It is now your turn.");
  w.showTurn(yourTurn);
  if (w.cmdCL.visible) s.demoMove = 0;
  s.tipText = tipHeading() + computerPassTip(s.kotak[0], s.kotak[1]);
  lastmove(w);
}

void announcePlayersPass(MainWindow& w) {
  GameState& s = w.state;
  w.showStatus(youPass);
  if (w.cmdCL.visible) s.demoMove = 1;
  selectLastCard(w);
  s.tipText += playerPassTip(s.kotak[0], s.kotak[1]);

  AboutWindow& popup = w.authormevra;
  const Frame& endCard = w.k.at(static_cast<std::size_t>(s.k0.value_or(0)));
  popup.form.left = endCard.left + endCard.width + popupGap;
  popup.form.top = popupTop;
  showTips(w);
  popup.ctrcom.visible = true;
  popup.form.giveFocus(popup.ctrcom);
  w.form.enabled = false;
}

void ctrcom_Click(MainWindow& w) {
  GameState& s = w.state;
  w.authormevra.ctrcom.visible = false;
  w.form.enabled = true;
  w.tanda.visible = true;
  w.desktop.hide(w.authormevra.form);
  w.jam.arm(replayDelay);
  w.showStatus(w.lblHow.visible ? "Computer's turn. Click Next" : "Computer's turn again. Wait!");
  s.tipText = tipHeading() + replayTip();
  ++s.sisa[3];
  lastmove(w);
}

void lastmove(MainWindow& w) {
  if (w.state.sisa[0] == 0) {
    w.akhir[0].visible = false;
    // QUIRK-10: a deadlock that was decided just before is recorded a second time here. One would
    // expect one loss a game; the statistics count two. Meant.
    computer_akhir(w);
    Hitung(w);
    akhirmain(w);
  }
  if (turnWasPlain(w)) gnr(w);
  if (w.cmdHow.usable()) w.form.giveFocus(w.cmdHow);
}

}  // namespace mevracard
