#include "ui/about_commands.h"

namespace mevracard {

namespace {

constexpr std::string_view tipsHeading =
    "TIPS OF GAME  (The content of help below changes according to the situation)";

}  // namespace

void author_Click(MainWindow& w) {
  AboutWindow& about = w.authormevra;
  w.desktop.show(about.form);
  about.additional.visible = false;
  about.mainh.caption = creditsLine;
  about.form.caption = "About this program";
}

void showTips(MainWindow& w) {
  AboutWindow& about = w.authormevra;
  w.desktop.show(about.form);
  about.form.caption = "Tips of Game";
  about.additional.visible = true;
  about.additional.caption = w.state.tipText;
  about.mainh.caption = tipsHeading;
}

void Label1_Click(MainWindow& w) { w.desktop.openAddress(homepageAddress); }

void go_Click(MainWindow& w) { Label1_Click(w); }

}  // namespace mevracard
