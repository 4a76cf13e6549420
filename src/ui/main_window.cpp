#include "ui/main_window.h"

#include "game/grid.h"

namespace mevracard {

namespace {

void showNumber(Label& label, int number) {
  // Nearly every number is a digit that already stands there, which then costs next to nothing.
  const bool stands = label.caption.size() == 1 && label.caption[0] == '0' + number;
  if (!stands) label.caption = std::to_string(number);
}

}  // namespace

MainWindow::MainWindow(Desktop& d) : desktop(d) {
  designControls();
  designMenu();
  about.form.clearOf = statistics.form.clearOf = [this] { return whatMatters(); };
}

double MainWindow::scale() const { return scaleOf(state.tableSize, state.screenHeight); }

std::vector<KeptClear> MainWindow::whatMatters() const {
  KeptClear buttons{{&choice.leftBottom, &choice.rightTop, &choice.cancel}, true};
  const Result& r = result;
  KeptClear words{
      {&status, &r.deadlock, &r.youHave, &r.computerHas, &r.yourSum, &r.computersSum, &r.verdict},
      true};
  KeptClear hand{{}, true}, ends{{}, true}, chain, computersHand;
  for (const int slot : allSlots) {
    const bool isEnd =
        slot == game.chain.endCard[End::RightTop] || slot == game.chain.endCard[End::LeftBottom];
    const bool players = ownerOf(slot) == Side::Player;
    KeptClear& group = !game.card(slot).held ? (isEnd ? ends : chain)
                       : players             ? hand
                                             : computersHand;
    group.boxes.push_back(&cards[static_cast<std::size_t>(slot)].frame);
  }
  return {buttons, hand, ends, words, chain, computersHand};
}

void MainWindow::refresh() {
  for (std::size_t i = 0; i < cardCount; ++i) {
    showNumber(cards[i].upper, game.cards[i].upper);
    showNumber(cards[i].lower, game.cards[i].lower);
  }
  for (const Side side : {Side::Computer, Side::Player}) {
    showNumber(table.cardsLeft[side].count, game.counts.cardsLeft[side]);
    showNumber(table.passes[side].count, game.counts.passes[side]);
  }
  form.headroom =
      std::max(1.0, static_cast<double>(largestTableSize) / std::max(1, state.tableSize));
  discard.visible = state.takesCards;
  result.deadlock.visible = game.ending.deadlock;
  menu.playerLevel1.checked = game.levels.player == 1;
  menu.playerLevel2.checked = game.levels.player == 2;
  menu.computerLevel1.checked = game.levels.computer == 1;
  menu.computerLevel2.checked = game.levels.computer == 2;
  form.settleFocus();
  about.form.settleFocus();
  statistics.form.settleFocus();
}

void MainWindow::present() {
  refresh();
  if (desktop.speaks()) speak();
  desktop.present();
}

void MainWindow::presentBeforeBox() {
  refresh();
  if (desktop.speaks()) speakBeforeBox();
  desktop.present();
}

void MainWindow::say(std::string_view text) {
  presentBeforeBox();
  desktop.messageBox(text);
}

void MainWindow::report(std::string_view text) {
  presentBeforeBox();
  desktop.reportError(text);
}

}  // namespace mevracard
