#include "ui/card_cover.h"

#include "game/rules.h"

namespace mevracard {

namespace {

std::array<Control*, 6> backOf(MainWindow& w, std::size_t card) {
  return {&w.luar1.at(card), &w.luar2.at(card), &w.luar3.at(card),
          &w.luar4.at(card), &w.luar5.at(card), &w.luar6.at(card)};
}

}  // namespace

void coverCard(MainWindow& w, std::size_t card) {
  for (Control* part : backOf(w, card)) {
    part->visible = true;
    w.form.bringToFront(*part);
  }
}

void uncoverCard(MainWindow& w, std::size_t card) {
  for (Control* part : backOf(w, card)) part->visible = false;
}

void BukaCover(MainWindow& w) { uncoverCard(w, static_cast<std::size_t>(w.state.playCard)); }

void coverComputersHand(MainWindow& w) {
  for (std::size_t i = computerFirst; i <= computerLast; ++i) {
    if (w.pl1.checked) uncoverCard(w, i);
    if (w.pl2.checked) coverCard(w, i);
  }
}

void paintNumbers(MainWindow& w, std::size_t card, Color color) {
  w.a[card].backColor = color;
  w.b[card].backColor = color;
}

}  // namespace mevracard
