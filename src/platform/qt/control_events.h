#pragma once

#include <QFocusEvent>

#include "platform/event.h"

namespace mevracard {

/// What the widget of a control tells the window it stands in.
class ControlEvents {
 public:
  /// The player did something with the control.
  virtual void send(EventKind kind, Control& control, int value = 0) = 0;
  /// The control's widget got the keyboard. Only a move by the player's mouse or Tab key counts.
  virtual void focusMoved(Control& control, Qt::FocusReason reason) = 0;

 protected:
  ~ControlEvents() = default;
};

}  // namespace mevracard
