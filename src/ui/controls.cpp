#include "ui/controls.h"

namespace mevracard {

std::array<Control*, 6> CardBack::parts() {
  return {&ground, &leaf, &stem, &lowerPetal, &leftPetal, &heart};
}

void CardControls::paintNumbers(Color color) {
  upper.backColor = color;
  lower.backColor = color;
}

void CardControls::cover() {
  for (Control* part : back.parts()) part->visible = true;
}

void CardControls::uncover() {
  for (Control* part : back.parts()) part->visible = false;
}

void Choice::show(bool open) {
  leftBottom.visible = open;
  rightTop.visible = open;
  cancel.visible = open;
  for (Line& arrow : arrows) arrow.visible = open;
}

std::array<Label*, 6> Result::labels() {
  return {&deadlock, &youHave, &computerHas, &yourSum, &computersSum, &verdict};
}

void Result::show(bool ended) {
  for (Label* label : {&youHave, &computerHas, &yourSum, &computersSum, &verdict}) {
    label->visible = ended;
  }
}

void Tutorial::show(bool running) {
  instruction.visible = running;
  next.visible = running;
  stop.visible = running;
  hint.visible = running;
}

void SizePanel::show(bool open) {
  for (Control* control : std::initializer_list<Control*>{&heading, &ground, &limits, &bar, &ok}) {
    control->visible = open;
  }
  for (Shape& box : monitorBoxes) box.visible = open;
  for (Line& line : monitorLines) line.visible = open;
}

}  // namespace mevracard
