#include "play/ending.h"

#include "game/moves.h"
#include "game/scoring.h"
#include "play/statistics.h"
#include "play/status.h"
#include "play/tutorial_end.h"
#include "texts/tip_text.h"

namespace mevracard {

namespace {

/// Counts the game before it is over: a message of the statistics may stand before its end.
/// QUIRK-43: also a tutorial that is played to its end. One would expect the statistics to hold the
/// player's own games alone; the player finds one more there.
void endGame(MainWindow& w, GameResult result, const std::string& tip) {
  if (w.state.tutorial.running) endTutorial(w);
  w.result.verdict.caption = result == GameResult::Won ? "You win" : "You lose";
  countResult(w, result);
  w.game.ending.over = true;
  w.state.tipText = tipHeading() + tip;
  showSums(w);
  showResult(w);
}

}  // namespace

void afterPlayersCard(MainWindow& w) {
  w.game.ending.deadlock = false;
  if (w.game.counts.cardsLeft[Side::Player] == 0) {
    endGame(w, winBy(w.game, Side::Player), playerWinsTip());
    return;
  }
  announce(w, Announcement::ComputersTurn);
  showStatusInFront(w);
  w.timer.arm(replyDelay);
}

void computerHasWon(MainWindow& w) { endGame(w, winBy(w.game, Side::Computer), computerWinsTip()); }

void deadlock(MainWindow& w) {
  w.result.verdict.visible = true;  // also while a message about the statistics stands before it
  showSums(w);
  endGame(w, decideDeadlock(w.game), deadlockTip());
}

void showSums(MainWindow& w) {
  w.result.yourSum.caption = std::to_string(leftover(w.game, Side::Player).sum);
  w.result.computersSum.caption = std::to_string(leftover(w.game, Side::Computer).sum);
}

void showResult(MainWindow& w) {
  w.state.takesCards = false;
  w.status.visible = false;
  w.result.show(true);
  for (const int slot : handOf(Side::Computer)) {
    if (w.game.card(slot).held) w.card(slot).uncover();
  }
}

}  // namespace mevracard
