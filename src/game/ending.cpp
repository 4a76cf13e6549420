#include "game/ending.h"

#include "game/rules.h"
#include "game/scoring.h"
#include "guide/tip_text.h"
#include "guide/tutorial_end.h"
#include "store/recording.h"
#include "ui/card_cover.h"

namespace mevracard {

namespace {

constexpr std::string_view youWin = "You win";
constexpr std::string_view youLose = "You lose";

Leftover playersLeftover(const MainWindow& w) { return leftover(w.state, playerFirst, playerLast); }

Leftover computersLeftover(const MainWindow& w) {
  return leftover(w.state, computerFirst, computerLast);
}

void endTutorial(MainWindow& w) {
  if (w.cmdCL.visible) how_hilang(w);
}

void recordEnd(MainWindow& w, RecordMode result) {
  recordResult(w, result);
  w.state.theend = 1;
}

}  // namespace

void raiseStatus(MainWindow& w) {
  w.form.bringToFront(w.tanda);
  w.tanda.visible = true;
}

void Hitung(MainWindow& w) {
  w.akhir[3].caption = std::to_string(playersLeftover(w).sum);
  w.akhir[4].caption = std::to_string(computersLeftover(w).sum);
}

void player_akhir(MainWindow& w) {
  GameState& s = w.state;
  w.akhir[0].visible = false;
  if (s.sisa[1] == 0) {
    endTutorial(w);
    w.akhir[5].caption = youWin;
    recordEnd(w, RecordMode::Won);
    Hitung(w);
    s.tipText = tipHeading() + playerWinsTip();
    akhirmain(w);
    return;
  }
  w.showTurn(computersTurn);
  raiseStatus(w);
  w.jam.arm(1000);
}

void computer_akhir(MainWindow& w) {
  GameState& s = w.state;
  w.akhir[0].visible = false;
  if (s.sisa[0] != 0) {
    w.showTurn(yourTurn);
    raiseStatus(w);
    return;
  }
  endTutorial(w);
  w.akhir[5].caption = youLose;
  recordEnd(w, RecordMode::Lost);
  s.tipText = tipHeading() + computerWinsTip();
  Hitung(w);
  akhirmain(w);
}

void deadlock(MainWindow& w) {
  endTutorial(w);
  Hitung(w);
  w.akhir[0].caption = "DEADLOCK!";
  const bool won = playerWinsDeadlock(playersLeftover(w), computersLeftover(w));
  w.akhir[5].caption = won ? youWin : youLose;
  w.akhir[5].visible = true;
  w.akhir[0].visible = true;
  recordEnd(w, won ? RecordMode::Won : RecordMode::Lost);
  w.state.tipText = tipHeading() + deadlockTip();
  akhirmain(w);
}

void akhirmain(MainWindow& w) {
  w.state.theend = 1;
  w.mulai.visible = false;
  w.tanda.visible = false;
  for (std::size_t i = 1; i < w.akhir.size(); ++i) w.akhir[i].visible = true;
  for (std::size_t i = computerFirst; i <= computerLast; ++i) {
    if (w.state.held[i] == 1) uncoverCard(w, i);
  }
}

}  // namespace mevracard
