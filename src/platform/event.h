#pragma once

#include "platform/form.h"

namespace mevracard {

enum class EventKind {
  Click,        ///< button or link pressed, by mouse or by key
  DoubleClick,  ///< on a card or one of its labels
  MouseDown,    ///< mouse button pressed on a control, before the click
  KeyPress,     ///< `value` is the key code: the character, or one of the codes below
  Scroll,       ///< the player moved a scroll bar to `value`
  Menu,         ///< `entry` was chosen
  Tick,         ///< the window's timer fired
  Close,        ///< the close box of a window
  SystemEnd,    ///< the system ends the program: of the main window, whatever disables it
};

constexpr int keyUntyped = 1;  ///< any that types nothing: an arrow, Tab, Delete
constexpr int keyEnter = 13;
constexpr int keyEscape = 27;
constexpr int keySpace = 32;

/// One thing that a player or the timer did. Pointers name parts of a window and stay valid.
struct Event {
  EventKind kind = EventKind::Click;
  Form* form = nullptr;
  Control* control = nullptr;  ///< null for Menu, Tick, Close, SystemEnd, and a key that none takes
  MenuEntry* entry = nullptr;
  int value = 0;
};

/// What a key does in this window: Enter and Space press the focused button, any other key goes to
/// the focused control as a KeyPress, or to none without a usable focus.
[[nodiscard]] inline Event keyEvent(Form& form, int key) {
  if (form.focus == nullptr || !form.focus->usable()) {
    return {EventKind::KeyPress, &form, nullptr, nullptr, key};
  }
  const bool press =
      (key == keyEnter || key == keySpace) && form.focus->kind == ControlKind::Button;
  return {press ? EventKind::Click : EventKind::KeyPress, &form, form.focus, nullptr,
          press ? 0 : key};
}

}  // namespace mevracard
