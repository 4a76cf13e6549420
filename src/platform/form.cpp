#include "platform/form.h"

#include <algorithm>

namespace mevracard {

namespace {

/// Lists are in depth order: the band of `layer` ends behind the last control of no later layer.
void insertAtFrontOfLayer(std::vector<Control*>& list, Control& control) {
  const auto last = std::find_if(list.rbegin(), list.rend(), [&](const Control* other) {
    return other->layer <= control.layer;
  });
  list.insert(last.base(), &control);
}

std::vector<Control*>& siblings(Form& form, Control& control) {
  return control.parent == nullptr ? form.controls : control.parent->children;
}

}  // namespace

void Timer::arm(int milliseconds) {
  interval = milliseconds;
  enabled = true;
  ++armings;
}

void Form::add(Control& control, std::string_view controlName, int index) {
  control.name = controlName;
  control.index = index;
  insertAtFrontOfLayer(siblings(*this, control), control);
}

void Form::addTo(Frame& frame, Control& control, std::string_view controlName, int index) {
  control.parent = &frame;
  add(control, controlName, index);
}

void Form::bringToFront(Control& control) {
  auto& list = siblings(*this, control);
  list.erase(std::find(list.begin(), list.end(), &control));
  insertAtFrontOfLayer(list, control);
}

void Form::sendToBack(Control& control) {
  auto& list = siblings(*this, control);
  list.erase(std::find(list.begin(), list.end(), &control));
  const auto layerBegin = std::find_if(list.begin(), list.end(), [&](const Control* other) {
    return other->layer >= control.layer;
  });
  list.insert(layerBegin, &control);
}

void Form::giveFocus(Control& control) {
  if (takesFocus(control) && control.usable()) focus = &control;
}

bool Form::holds(const Control& control) const {
  if (control.parent != nullptr) return holds(*control.parent);
  return std::find(controls.begin(), controls.end(), &control) != controls.end();
}

void Form::settleFocus() {
  if (focus != nullptr && focus->usable()) return;
  focus = defaultFocus != nullptr && defaultFocus->usable() ? defaultFocus : nullptr;
}

}  // namespace mevracard
