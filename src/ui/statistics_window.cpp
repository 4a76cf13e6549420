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
  design(Label2,   { 840,  600,  855, 495}, "Won:",  text);
  design(wins,     {1200,  600,  735, 375}, "0",     figure);
  design(pwins,    {2640,  600,  375, 375}, "0%",    figure);
  design(Label3,   { 840,  960,  975, 495}, "Lost:", text);
  design(loses,    {1200,  960,  735, 495}, "0",     figure);
  design(ploses,   {2640,  960,  375, 375}, "0%",    figure);
  design(tutuprec, { 720, 1560, 1095, 495}, "OK");
  design(hapusrec, {2040, 1560, 1095, 495}, "Clear");
  // clang-format on

  form.add(Label2, "Label2", 0);
  form.add(Label3, "Label3", 0);
  form.add(wins, "wins");
  form.add(pwins, "pwins");
  form.add(loses, "loses");
  form.add(ploses, "ploses");
  form.add(tutuprec, "tutuprec");
  form.add(hapusrec, "hapusrec");
  form.defaultFocus = &tutuprec;
}

}  // namespace mevracard
