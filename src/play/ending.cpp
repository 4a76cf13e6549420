#include "play/ending.h"

#include "game/scoring.h"
#include "play/recording.h"
#include "play/status.h"
#include "play/tutorial_end.h"
#include "texts/tip_text.h"

namespace mevracard {

namespace {

/// A lost game is counted here, whoever has decided it.
/// QUIRK-43: and so is a demonstration that is played to its end. One would expect the
/// statistics to hold the player's own games alone; the player finds one more there. Meant.
void decide(MainWindow& w, GameResult result) {
  const bool won = result == GameResult::Won;
  w.game.ending.result = result;
  w.result.verdict.caption = won ? "You win" : "You lose";
  recordResult(w, result);
}

void playerHasWon(MainWindow& w) {
  if (w.state.tutorial.running) endTutorial(w);
  decide(w, GameResult::Won);
  showSums(w);
  w.state.tipText = tipHeading() + playerWinsTip();
  showResult(w);
}

}  // namespace

void afterPlayersCard(MainWindow& w) {
  w.game.ending.deadlock = false;
  if (w.game.counts.cardsLeft[Side::Player] == 0) {
    playerHasWon(w);
    return;
  }
  announce(w, Announcement::ComputersTurn);
  raiseStatus(w);
  w.timer.arm(replyDelay);
}

void computerHasWon(MainWindow& w) {
  w.game.ending.deadlock = false;
  if (w.state.tutorial.running) endTutorial(w);
  decide(w, GameResult::Lost);
  w.state.tipText = tipHeading() + computerWinsTip();
  showSums(w);
  showResult(w);
}

void deadlock(MainWindow& w) {
  TableState& s = w.state;
  if (s.tutorial.running) endTutorial(w);
  w.game.ending.deadlock = true;
  w.result.verdict.visible = true;  // also while a message about the statistics stands before it
  showSums(w);
  const bool won =
      playerWinsDeadlock(leftover(w.game, Side::Player), leftover(w.game, Side::Computer));
  decide(w, won ? GameResult::Won : GameResult::Lost);
  s.tipText = tipHeading() + deadlockTip();
  showResult(w);
}

void showSums(MainWindow& w) {
  w.result.yourSum.caption = std::to_string(leftover(w.game, Side::Player).sum);
  w.result.computersSum.caption = std::to_string(leftover(w.game, Side::Computer).sum);
}

void showResult(MainWindow& w) {
  w.game.ending.over = true;
  w.state.takesCards = false;
  w.status.visible = false;
  w.result.show(true);
  for (const int slot : handOf(Side::Computer)) {
    if (w.game.card(slot).held) w.card(slot).uncover();
  }
}

}  // namespace mevracard
