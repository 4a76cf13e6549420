#include "play/choice.h"

#include "play/status.h"

namespace mevracard {

void openChoice(MainWindow& w, int card) {
  TableState& s = w.state;
  s.choiceOpen = true;
  s.choiceCard = card;
  announce(w, Announcement::ChooseOne);
  w.status.visible = true;
  w.choice.leftBottom.caption = "Mevra " + std::to_string(w.game.chain.openNumber[End::RightTop]);
  w.choice.rightTop.caption = "Mevra " + std::to_string(w.game.chain.openNumber[End::LeftBottom]);
  w.choice.show(true);
  w.form.giveFocus(w.choice.keys);
}

void closeChoice(MainWindow& w) {
  if (!w.state.choiceOpen) return;
  w.state.choiceOpen = false;
  w.choice.show(false);
  w.form.giveFocus(w.discard);
}

}  // namespace mevracard
