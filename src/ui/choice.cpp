#include "ui/choice.h"

namespace mevracard {

void closeChoice(MainWindow& w) {
  if (!choiceIsOpen(w)) return;
  w.kiri.visible = false;
  w.kanan.visible = false;
  w.panah1.visible = false;
  w.panah2.visible = false;
  w.panah3.visible = false;
  w.form.giveFocus(w.mulai);
  w.canc.visible = false;
}

}  // namespace mevracard
