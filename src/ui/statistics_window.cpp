#include "ui/statistics_window.h"

#include "ui/design.h"

namespace mevracard {

namespace {

// The labels of a row overlap, so none may paint over the other.
const LabelLook text{panelGrey, black, {}, Alignment::Left, false, false};
const LabelLook figure{panelGrey, black, {}, Alignment::Right, false, false};

}  // namespace

StatisticsWindow::StatisticsWindow() {
  form.name = "kalahmenang";
  form.caption = "Game Statistics";
  form.backColor = panelGrey;
  form.width = 4005;
  form.height = 2580;

  // clang-format off
  design(wonCaption,  { 840,  600,  855, 495}, "Won:",  text);
  design(won,         {1200,  600,  735, 375}, "0",     figure);
  design(wonPercent,  {2640,  600,  375, 375}, "0%",    figure);
  design(lostCaption, { 840,  960,  975, 495}, "Lost:", text);
  design(lost,        {1200,  960,  735, 495}, "0",     figure);
  design(lostPercent, {2640,  960,  375, 375}, "0%",    figure);
  design(ok,          { 720, 1560, 1095, 495}, "OK");
  design(clear,       {2040, 1560, 1095, 495}, "Clear");
  // clang-format on

  form.add(wonCaption, "Label2", 0);
  form.add(lostCaption, "Label3", 0);
  form.add(won, "wins");
  form.add(wonPercent, "pwins");
  form.add(lost, "loses");
  form.add(lostPercent, "ploses");
  form.add(ok, "tutuprec");
  form.add(clear, "hapusrec");
  form.defaultFocus = &ok;
}

}  // namespace mevracard
