#include "play/about.h"

#include "play/passing.h"

namespace mevracard {

void showAbout(MainWindow& w) {
  w.about.form.placed = false;
  w.about.form.caption = "About this program";
  w.about.heading.caption = creditsLine;
  w.about.tip.visible = false;
  w.desktop.show(w.about.form);
}

void closeAbout(MainWindow& w) {
  // After a pass only OK gives the main window back, so closing the box counts as OK.
  if (w.state.passAwaitsOk) {
    acknowledgePass(w);
  } else {
    w.desktop.hide(w.about.form);
  }
}

void openHomepage(MainWindow& w) { w.desktop.openAddress(homepageAddress); }

}  // namespace mevracard
