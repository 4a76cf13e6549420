#include "platform/qt/scroll_bar_widget.h"

#include <QPainter>
#include <QSignalBlocker>

#include "platform/qt/look.h"

namespace mevracard {

ScrollBarWidget::ScrollBarWidget(ScrollBar& bar, ControlEvents& events, QWidget& parent)
    : QScrollBar(Qt::Horizontal, &parent), bar_(bar), events_(events) {
  setObjectName(QString::fromStdString(bar.fullName()));
  setFocusPolicy(Qt::StrongFocus);
  setTracking(false);
  setSingleStep(1);
  setPageStep(1);
  setVisible(false);
  connect(this, &QScrollBar::valueChanged, this,
          [this](int value) { events_.send(EventKind::Scroll, bar_, value); });
}

bool ScrollBarWidget::flush() {
  const Look look{bar_.visible, bar_.enabled, toPixelRect(bar_),
                  bar_.minimum, bar_.maximum, bar_.value};
  const bool same = look == look_ && value() == look.value;
  if (same) return false;
  look_ = look;
  const QSignalBlocker silent(this);
  setRange(look.minimum, look.maximum);
  setValue(look.value);
  setGeometry(look.place);
  setEnabled(look.enabled);
  setVisible(look.visible);
  return true;
}

void ScrollBarWidget::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ScrollBarWidget::focusInEvent(QFocusEvent* event) {
  QScrollBar::focusInEvent(event);
  update();
  events_.focusMoved(bar_, event->reason());
}

void ScrollBarWidget::focusOutEvent(QFocusEvent* event) {
  QScrollBar::focusOutEvent(event);
  update();
}

}  // namespace mevracard
