#include "play/tutorial_end.h"

namespace mevracard {

void giveUpDemonstratedMove(MainWindow& w) {
  constexpr int pastTheEnd = 1'000'000;
  w.state.demo.busy = false;
  w.state.demo.tick = pastTheEnd;
}

void endTutorial(MainWindow& w) {
  w.state.tutorial = {};
  // A move that was being demonstrated must not keep the next tutorial waiting for its end.
  w.state.demo.busy = false;
  w.tutorial.show(false);
  // QUIRK-29: `helpTableSize` is not among them. One would expect every entry back; the player
  // finds Help's "ScreenOption" greyed until the next start, the one in the menu bar works.
  w.menu.howToPlay.enabled = true;
  w.menu.file.enabled = true;
  w.menu.tableSize.enabled = true;
}

}  // namespace mevracard
