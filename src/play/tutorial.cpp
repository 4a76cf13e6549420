#include "play/tutorial.h"

#include <array>

#include "ai/computer_moves.h"
#include "game/rules.h"
#include "play/computer_turn.h"
#include "play/demonstrated_move.h"
#include "play/new_game.h"
#include "play/tips.h"
#include "play/tutorial_end.h"
#include "texts/tip_text.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

/// Place of NEXT on a maximized window, in pixels of 15 twips, where the screen cannot be asked.
constexpr ScreenPoint nextButton{112, 230};

void chooseCardToShow(MainWindow& w) {
  TableState& s = w.state;
  for (const int card : scanned(Side::Player, scanFor(w.desktop.random()))) {
    s.demo.card = card;
    if (w.game.card(card).held && fits(w.game, card)) return;
  }
}

void demonstrateMove(MainWindow& w) {
  TableState& s = w.state;
  s.demo.done = false;
  s.demo.busy = true;
  s.tutorial.nextIsComputers = true;
  w.timer.disarm();
  chooseCardToShow(w);
  aimPointer(w);
}

void waitForItsEnd(MainWindow& /*w*/) {}

void letComputerMove(MainWindow& w) {
  w.state.tipText = computerMovedTip() + w.state.tipText;
  takeComputersTurn(w);
}

/// QUIRK-31: NEXT during the glide gives up the demonstrated move and lets the computer move at
/// once. One would expect it to wait; the player sees the computer move twice in a row.
/// The marks of the given-up move go, or the player would take them for the next one's.
void giveUpMove(MainWindow& w) {
  for (CardControls& card : w.cards) card.paintNumbers(handColour);
  giveUpDemonstratedMove(w);
  letComputerMove(w);
}

/// A state of the running tutorial, and what NEXT does in it.
struct TutorialPhase {
  bool nextIsComputers;
  bool demonstrating;
  void (*next)(MainWindow& w);
};

constexpr std::array<TutorialPhase, 4> phases{{
    {false, false, demonstrateMove},  // the player is to move: at the start, after the computer
    {true, true, giveUpMove},         // a move of the player's is being shown
    {true, false, letComputerMove},   // the computer is to move: after that, or after a pass
    {false, true, waitForItsEnd},     // shown, but without a turn for the computer
}};

}  // namespace

void startTutorial(MainWindow& w) {
  TableState& s = w.state;
  s.tutorial = {.running = true, .untilFirstCard = true, .computerWaitsForNext = true};
  s.demo.busy = false;
  w.tutorial.show(true);
  startAnotherGame(w);
  w.menu.tableSize.enabled = false;
  w.menu.file.enabled = false;
  w.menu.helpTableSize.enabled = false;
}

void pressNext(MainWindow& w) {
  const TableState& s = w.state;
  resetTip(w);
  for (const TutorialPhase& phase : phases) {
    if (phase.nextIsComputers == s.tutorial.nextIsComputers && phase.demonstrating == s.demo.busy) {
      phase.next(w);
      return;
    }
  }
}

void mouseDownOnNext(MainWindow& w) {
  // QUIRK-30: pressed with the keyboard, NEXT does not pass here. One would expect the glide to
  // start at the button; it starts where the one before ended.
  w.state.demo.start = placeOnScreen(w, w.tutorial.next).value_or(nextButton);
}

void stopTutorial(MainWindow& w) {
  w.timer.disarm();
  endTutorial(w);
  startAnotherGame(w);
}

}  // namespace mevracard
