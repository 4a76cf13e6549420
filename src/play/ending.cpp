#include "play/ending.h"

#include "game/moves.h"
#include "game/scoring.h"
#include "play/recording.h"
#include "play/status.h"
#include "play/tutorial_end.h"
#include "texts/tip_text.h"

namespace mevracard {

namespace {

/// Writes down who has won, on the table and in the statistics.
/// QUIRK-43: also a demonstration that is played to its end. One would expect the
/// statistics to hold the player's own games alone; the player finds one more there.
void record(MainWindow& w, GameResult result) {
  w.result.verdict.caption = result == GameResult::Won ? "You win" : "You lose";
  recordResult(w, result);
}

void playerHasWon(MainWindow& w) {
  if (w.state.tutorial.running) endTutorial(w);
  record(w, winBy(w.game, Side::Player));
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
  showStatusInFront(w);
  w.timer.arm(replyDelay);
}

void computerHasWon(MainWindow& w) {
  if (w.state.tutorial.running) endTutorial(w);
  record(w, winBy(w.game, Side::Computer));
  w.state.tipText = tipHeading() + computerWinsTip();
  showSums(w);
  showResult(w);
}

void deadlock(MainWindow& w) {
  if (w.state.tutorial.running) endTutorial(w);
  const GameResult result = decideDeadlock(w.game);
  w.result.verdict.visible = true;  // also while a message about the statistics stands before it
  showSums(w);
  record(w, result);
  w.state.tipText = tipHeading() + deadlockTip();
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
