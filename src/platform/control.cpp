#include "platform/control.h"

namespace mevracard {

std::string Control::fullName() const {
  std::string text(name);
  if (index >= 0) text += "(" + std::to_string(index) + ")";
  return text;
}

bool Control::usable() const {
  return visible && enabled && (parent == nullptr || parent->usable());
}

bool takesFocus(const Control& control) {
  return control.kind == ControlKind::Button || control.kind == ControlKind::ScrollBar;
}

}  // namespace mevracard
