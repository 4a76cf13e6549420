#pragma once

#include <QPushButton>
#include <string>

#include "platform/control.h"
#include "platform/qt/control_events.h"

namespace mevracard {

/// A Button on the screen. The mouse presses it; keys go on to the window, which knows what they
/// do.
class ButtonWidget final : public QPushButton {
 public:
  ButtonWidget(Button& button, ControlEvents& events, QWidget& parent);

  /// Brings it up to date. `reachable`: whether Tab leads to one that only takes keys.
  bool flush(bool reachable);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }
  void focusInEvent(QFocusEvent* event) override;

 private:
  struct Look {
    bool visible = false, enabled = true, keysOnly = false, reachable = true;
    QRect place;
    std::string caption;
    Font font;
    Color backColor, foreColor;
    bool operator==(const Look&) const = default;
  };

  Button& button_;
  ControlEvents& events_;
  Look look_;
  QFont fitted_;
};

}  // namespace mevracard
