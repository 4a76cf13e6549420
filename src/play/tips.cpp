#include "play/tips.h"

#include "texts/tip_text.h"

namespace mevracard {

namespace {

constexpr std::string_view windowHeading =
    "TIPS OF GAME  (The content of help below changes according to the situation)";

}  // namespace

void resetTip(MainWindow& w) { w.state.tipText = tipHeading(); }

void appendTip(MainWindow& w, std::string (*tip)(int first, int second)) {
  const auto& open = w.game.chain.openNumber;
  w.state.tipText += tip(open[End::RightTop], open[End::LeftBottom]);
}

void appendGeneralTip(MainWindow& w) {
  // QUIRK-15: nothing is reset here, so with the keyboard alone the tip grows turn by turn. One
  // would expect the last turn's tip only; the player reads the earlier ones above it.
  appendTip(w, generalTip);
}

void openTips(MainWindow& w) {
  w.about.form.placed = false;
  showTips(w);
}

void showTips(MainWindow& w) {
  w.about.form.caption = "Tips of Game";
  w.about.heading.caption = windowHeading;
  w.about.tip.visible = true;
  w.about.tip.caption = w.state.tipText;
  w.desktop.show(w.about.form);
}

}  // namespace mevracard
