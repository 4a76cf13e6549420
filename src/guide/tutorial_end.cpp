#include "guide/tutorial_end.h"

namespace mevracard {

void giveUpDemonstration(MainWindow& w) {
  constexpr int pastTheEnd = 1'000'000;
  w.state.demoBusy = 0;
  w.state.demoTick = pastTheEnd;
}

void how_hilang(MainWindow& w) {
  w.cmdCL.visible = false;
  w.lblHow.visible = false;
  w.state.tutorialDeal = 0;
  w.cmdHow.visible = false;
  w.gttip.visible = false;
  // QUIRK-29: `rufoxx` is not among them. One would expect every entry back; the player finds
  // Help's "ScreenOption" greyed until the next start, the one in the menu bar works. Meant.
  w.how.enabled = true;
  w.file.enabled = true;
  w.scr.enabled = true;
  w.state.demoMove = 0;
  w.state.tutorialActive = 0;
  // A move that was being demonstrated must not keep the next tutorial waiting for its end.
  w.state.demoBusy = 0;
}

}  // namespace mevracard
