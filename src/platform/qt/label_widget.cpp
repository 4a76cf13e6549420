#include "platform/qt/label_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <utility>

#include "platform/qt/graphic.h"
#include "platform/qt/look.h"

namespace mevracard {

namespace {

constexpr int borderWidth = 1;
constexpr int sidePadding = 2;
constexpr int focusMargin = 1;

}  // namespace

LabelWidget::LabelWidget(Label& label, ControlEvents& events, QWidget& parent)
    : QLabel(&parent), label_(label), events_(events) {
  setObjectName(QString::fromStdString(label.fullName()));
  setTextFormat(Qt::PlainText);
  setVisible(false);
}

LabelWidget::Look LabelWidget::lookOf(bool covered) const {
  const Label& l = label_;
  if (covered || !l.visible) return {};
  return {true,        l.enabled,  toPixelRect(l), l.caption, l.font,      l.alignment,
          l.bordered,  l.opaque,   l.link,         l.backColor, l.foreColor};
}

bool LabelWidget::flush(bool covered) {
  const Look look = lookOf(covered);
  if (look == look_) return false;
  const Look before = std::exchange(look_, look);
  if (look.caption != before.caption) setText(toText(look.caption));
  if (look.visible) {
    setGeometry(look.place);
    setEnabled(look.enabled);
    setCursor(look.link ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setFocusPolicy(look.link ? Qt::StrongFocus : Qt::NoFocus);
    fit();
    update();
  }
  setVisible(look.visible);
  return true;
}

QRect LabelWidget::room() const {
  const QRect window = parentWidget()->rect().translated(-pos());
  const int border = look_.bordered ? borderWidth : 0;
  const int side = look_.alignment == Alignment::Centre ? border : border + sidePadding;
  const bool scrolled = scrollBar_ != nullptr && scrollBar_->isVisibleTo(this);
  const int right = scrolled ? scrollBar_->width() : 0;
  return rect().intersected(window).adjusted(side, border, -side - right, -border);
}

void LabelWidget::fit() {
  if (scrollBar_ != nullptr) scrollBar_->hide();
  fitted_ = fitCaption(text(), toFont(look_.font), room().size(), look_.alignment);
  const bool tooLong = fitted_.height > room().height() && (fitted_.flags & Qt::TextWordWrap) != 0;
  if (tooLong) fitScrollBar();
}

void LabelWidget::fitScrollBar() {
  if (scrollBar_ == nullptr) {
    scrollBar_ = new QScrollBar(Qt::Vertical, this);
    scrollBar_->setFocusPolicy(Qt::StrongFocus);
    connect(scrollBar_, &QScrollBar::valueChanged, this, qOverload<>(&QLabel::update));
  }
  const QRect all = room();
  const int width = scrollBar_->sizeHint().width();
  scrollBar_->setGeometry(all.right() + 1 - width, all.top(), width, all.height());
  scrollBar_->show();
  fitted_ = fitCaption(text(), toFont(look_.font), room().size(), look_.alignment);
  scrollBar_->setRange(0, qMax(0, fitted_.height - all.height()));
  scrollBar_->setPageStep(all.height());
  scrollBar_->setSingleStep(QFontMetrics(fitted_.font).height());
  scrollBar_->setValue(0);
}

void LabelWidget::resizeEvent(QResizeEvent* /*event*/) {
  // The toolkit's label has nothing to lay out: the text is fitted when the look changes.
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (look_.opaque) painter.fillRect(rect(), toColor(look_.backColor));
  if (look_.bordered) paintBorder(painter, rect(), Qt::black);
  painter.setFont(fitted_.font);
  painter.setPen(toColor(look_.foreColor));
  const QRect space = room();
  if (scrollBar_ != nullptr && scrollBar_->isVisible()) {
    painter.setClipRect(space);
    const QRect whole(space.left(), space.top() - scrollBar_->value(), space.width(),
                      fitted_.height);
    painter.drawText(whole, fitted_.flags, text());
  } else {
    painter.drawText(space, fitted_.flags | Qt::TextDontClip, text());
  }
  if (hasFocus()) {
    painter.setPen(QPen(toColor(look_.foreColor), 1, Qt::DotLine));
    const int m = focusMargin;
    painter.drawRect(rect().adjusted(m, m, -m - 1, -m - 1));
  }
}

void LabelWidget::mousePressEvent(QMouseEvent* event) {
  event->setAccepted(isLink() && event->button() == Qt::LeftButton);
}

void LabelWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (isLink() && event->button() == Qt::LeftButton && rect().contains(event->pos())) press();
}

void LabelWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (!isLink()) events_.send(EventKind::DoubleClick, label_);
}

void LabelWidget::keyPressEvent(QKeyEvent* event) {
  const bool presses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
  if (isLink() && presses) {
    if (!event->isAutoRepeat()) press();
  } else {
    event->ignore();
  }
}

void LabelWidget::wheelEvent(QWheelEvent* event) {
  if (scrollBar_ != nullptr && scrollBar_->isVisible()) {
    QApplication::sendEvent(scrollBar_, event);
  } else {
    event->ignore();
  }
}

}  // namespace mevracard
