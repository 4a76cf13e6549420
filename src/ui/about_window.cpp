#include "ui/about_window.h"

#include "ui/design.h"

namespace mevracard {

namespace {

constexpr const char* serif = "Times New Roman";
const LabelLook headingText{paleGreen, black, {serif, 11.25F, true, true}};
const LabelLook linkText{paleGreen, blue, {"MS Sans Serif", 9.75F}};
const LabelLook bodyText{paleGreen, blue, {}};
// The emblem's texts reach over the card outlines, which must stay whole.
const LabelLook cardText{paleGreen, blue, {serif, 9.75F}, Alignment::Centre, false, false};
const LabelLook cardName{paleGreen, blue, {serif, 9.0F}, Alignment::Centre, false, false};

// clang-format off
void designEmblem(AboutWindow& w) {
  design(w.triangle[0], 3000, 1440, 1680, 2160, activeTitleBar, 3);
  design(w.triangle[1], 3000, 1440, 2760, 2160, activeTitleBar, 3);
  design(w.triangle[2], 3000, 1440, 3240, 2160, activeTitleBar, 3);
  design(w.triangle[3], 3000, 1440, 4440, 2160, activeTitleBar, 3);
  design(w.triangle[4], 1680, 2160, 4440, 2160, emblemBlue, 5);
  outline(w.cards[0], ShapeForm::Rectangle, {2040, 1800, 495, 735}, black);
  outline(w.cards[1], ShapeForm::Rectangle, {3480, 1800, 495, 735}, black);
  design(w.numbers[0], {2040, 1800, 495, 255}, "0",     cardText);
  design(w.numbers[1], {2160, 2280, 255, 255}, "0",     cardText);
  design(w.numbers[2], {3480, 1800, 495, 255}, "Zub",   cardText);
  design(w.numbers[3], {3480, 2280, 495, 255}, "Mevra", cardName);
  solid(w.apex, ShapeForm::Ellipse, {2880, 1320, 255, 255}, emblemBlue, emblemBlue);
}
// clang-format on

}  // namespace

AboutWindow::AboutWindow() {
  form.name = "authormevra";
  form.caption = "About this program";
  form.backColor = paleGreen;
  form.width = 6255;
  form.height = 3540;

  design(heading, {120, 120, 6255, 615}, creditsLine, headingText);
  design(link, {120, 720, 5895, 375}, "Click:  " + std::string(homepageAddress), linkText);
  link.link = true;
  designEmblem(*this);
  design(tip, {120, 1200, 6015, 2175}, "", bodyText);
  tip.scrolls = true;
  design(ok, {2760, 2520, 972, 492}, "OK");

  form.add(heading, "mainh");
  form.add(link, "Label1");
  addAll(form, triangle, "triangle");
  addAll(form, cards, "cards");
  form.bringToFront(triangle[4]);  // the base line is the divider of both cards
  addAll(form, numbers, "numbers");
  form.add(apex, "apex");
  form.add(tip, "additional");
  form.add(ok, "ctrcom");
  tip.visible = false;
  ok.visible = false;
  form.defaultFocus = &ok;
}

}  // namespace mevracard
