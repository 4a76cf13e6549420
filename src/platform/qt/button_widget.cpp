#include "platform/qt/button_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "platform/qt/look.h"
#include "platform/qt/text_fit.h"

namespace mevracard {

namespace {

constexpr int edge = 2;  // pixels that the button's own border takes on each side

}  // namespace

ButtonWidget::ButtonWidget(Button& button, ControlEvents& events, QWidget& parent)
    : QPushButton(&parent), button_(button), events_(events) {
  setObjectName(QString::fromStdString(button.fullName()));
  setVisible(false);
  connect(this, &QPushButton::clicked, this, [this] { events_.send(EventKind::Click, button_); });
}

bool ButtonWidget::flush(bool reachable) {
  const Button& b = button_;
  const Look look{b.visible, b.enabled, b.keysOnly,  reachable,  toPixelRect(b),
                  b.caption, b.font,    b.backColor, b.foreColor};
  if (look == look_) return false;
  look_ = look;
  setText(toText(look.caption));
  setAccessibleName(text());
  setGeometry(look.place);
  setEnabled(look.enabled);
  setFocusPolicy(look.keysOnly && !look.reachable ? Qt::NoFocus : Qt::StrongFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents, look.keysOnly);
  QPalette colors = palette();
  colors.setColor(QPalette::Button, toColor(look.backColor));
  colors.setColor(QPalette::Active, QPalette::ButtonText, toColor(look.foreColor));
  colors.setColor(QPalette::Inactive, QPalette::ButtonText, toColor(look.foreColor));
  setPalette(colors);
  fitted_ = fitLine(text(), toFont(look.font), look.place.size() - QSize(2 * edge, edge));
  setVisible(look.visible);
  update();
  return true;
}

void ButtonWidget::paintEvent(QPaintEvent* /*event*/) {
  if (look_.keysOnly) return;
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  painter.setFont(fitted_);
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(palette().color(group, QPalette::ButtonText));
  const int shift = isDown() ? 1 : 0;
  painter.drawText(rect().translated(shift, shift), Qt::AlignCenter | Qt::TextDontClip, text());
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) events_.send(EventKind::MouseDown, button_);
  QPushButton::mousePressEvent(event);
}

void ButtonWidget::focusInEvent(QFocusEvent* event) {
  QPushButton::focusInEvent(event);
  events_.focusMoved(button_, event->reason());
}

}  // namespace mevracard
