#include "guide/tips.h"

#include "guide/tip_text.h"
#include "ui/about_commands.h"

namespace mevracard {

void gnr(MainWindow& w) {
  // QUIRK-15: nothing is reset here, so with the keyboard alone the tip grows turn by turn. One
  // would expect the last turn's tip only; the player reads the earlier ones above it. Meant.
  w.state.tipText += generalTip(w.state.kotak[0], w.state.kotak[1]);
}

void resetTip(MainWindow& w) { w.state.tipText = tipHeading(); }

void tips_Click(MainWindow& w) { showTips(w); }

}  // namespace mevracard
