#pragma once

#include <QScrollBar>

#include "platform/control.h"
#include "platform/qt/control_events.h"

namespace mevracard {

/// A ScrollBar on the screen. Arrows, trough and keys report at once, a drag on release.
class ScrollBarWidget final : public QScrollBar {
 public:
  ScrollBarWidget(ScrollBar& bar, ControlEvents& events, QWidget& parent);

  /// Brings it up to date; reports nothing.
  bool flush();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Look {
    bool visible = false, enabled = true;
    QRect place;
    int minimum = 0, maximum = 0, value = 0;
    bool operator==(const Look&) const = default;
  };

  ScrollBar& bar_;
  ControlEvents& events_;
  Look look_;
};

}  // namespace mevracard
