#include "flow/same_number_choice.h"

#include "game/ending.h"
#include "game/placement.h"
#include "guide/tips.h"
#include "platform/event.h"
#include "ui/choice.h"

namespace mevracard {

namespace {

void layChosen(MainWindow& w, int leftEnd) {
  resetTip(w);
  closeChoice(w);
  w.tanda.visible = false;
  if (leftEnd == 1) w.state.leftEndChosen = 1;
  Cocok(w);
  --w.state.sisa[1];
  player_akhir(w);
}

int digitKey(int number) { return '0' + number; }

}  // namespace

void openChoice(MainWindow& w, int card) {
  const auto [first, second] = w.state.kotak;
  w.kiri.visible = true;
  w.kanan.visible = true;
  w.tanda.visible = true;
  w.showStatus("'Mevra!'   Choose One");
  w.panah1.visible = true;
  w.panah2.visible = true;
  w.panah3.visible = true;
  w.kiri.caption = "Mevra " + std::to_string(first);
  w.kanan.caption = "Mevra " + std::to_string(second);
  w.form.giveFocus(w.hilang);
  w.canc.visible = true;
  w.state.playCard = card;
}

void kiri_Click(MainWindow& w) { layChosen(w, 1); }

void kanan_Click(MainWindow& w) { layChosen(w, 0); }

void canc_Click(MainWindow& w) {
  // QUIRK-40: a card selected by 'p' stays selected. One would expect to be asked again; the next
  // Enter lays it at the Right/Top end. Meant.
  resetTip(w);
  gnr(w);
  closeChoice(w);
  w.showTurn(yourTurn);
}

void hilang_KeyPress(MainWindow& w, int key) {
  // The button can hold the focus after the choice has closed; its keys then mean nothing.
  if (!choiceIsOpen(w)) return;
  if (key == keyEscape) {
    canc_Click(w);
  } else if (key == digitKey(w.state.kotak[0])) {
    kiri_Click(w);
  } else if (key == digitKey(w.state.kotak[1])) {
    kanan_Click(w);
  }
}

}  // namespace mevracard
