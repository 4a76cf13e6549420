#include "platform/qt/label_widget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/qt/graphic.h"
#include "platform/qt/look.h"

namespace mevracard {

namespace {

constexpr int borderWidth = 1;
constexpr int sidePadding = 2;
constexpr int topPadding = 2;  // where there is room to spare

}  // namespace

LabelWidget::LabelWidget(Label& label, ControlEvents& events, QWidget& parent)
    : QLabel(&parent), label_(label), events_(events) {
  setObjectName(QString::fromStdString(label.fullName()));
  setTextFormat(Qt::PlainText);
  setVisible(false);
}

LabelWidget::Look LabelWidget::lookOf(const Exposure& exposure) const {
  const Label& l = label_;
  if (exposure.covered || !l.visible) return {};
  return {true,        l.enabled,  toPixelRect(l), exposure.clear, l.caption,   l.font,
          l.alignment, l.bordered, l.opaque,       l.link,         l.backColor, l.foreColor};
}

bool LabelWidget::flush(const Exposure& exposure) {
  const Look look = lookOf(exposure);
  if (look == look_) return false;
  const Look before = std::exchange(look_, look);
  if (look.caption != before.caption) setText(toText(look.caption));
  if (look.visible) {
    setGeometry(look.place);
    setEnabled(look.enabled);
    if (look.link != before.link) {
      setCursor(look.link ? Qt::PointingHandCursor : Qt::ArrowCursor);
      setFocusPolicy(look.link ? Qt::StrongFocus : Qt::NoFocus);
    }
    fit();
    update();
  }
  setVisible(look.visible);
  return true;
}

bool LabelWidget::isScrolled() const { return scrollBar_ != nullptr && !scrollBar_->isHidden(); }

QRect LabelWidget::room() const {
  QRect inside = rect() & look_.clear.translated(-pos());
  // A window of fixed size may be narrower than a label on it; any other can show all of it.
  const bool fixed = window()->minimumSize() == window()->maximumSize();
  if (fixed) inside &= QRect(mapFrom(window(), QPoint()), window()->size());
  const int border = look_.bordered ? borderWidth : 0;
  const int side = look_.alignment == Alignment::Centre ? border : border + sidePadding;
  const int right = isScrolled() ? scrollBar_->width() : 0;
  return inside.adjusted(side, border, -side - right, -border);
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
    scrollBar_->hide();
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
  // What does not fit has grown at its end, and there stands what is new.
  scrollBar_->setValue(scrollBar_->maximum());
}

void LabelWidget::resizeEvent(QResizeEvent* /*event*/) {
  // The toolkit's label has nothing to lay out: the text is fitted when the look changes.
}

QRect LabelWidget::textPlace() const {
  const QRect space = room();
  if (isScrolled()) {
    return {space.left(), space.top() - scrollBar_->value(), space.width(), fitted_.height};
  }
  const bool fromTop = (fitted_.flags & Qt::AlignTop) != 0;
  const int top = fromTop ? std::clamp(space.height() - fitted_.height, 0, topPadding) : 0;
  return space.adjusted(0, top, 0, 0);
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (look_.opaque) painter.fillRect(rect(), toColor(look_.backColor));
  if (look_.bordered) paintBorder(painter, rect(), Qt::black);
  if (isScrolled()) painter.setClipRect(room());
  painter.setFont(fitted_.font);
  painter.setPen(toColor(look_.foreColor));
  QRect written;
  painter.drawText(textPlace(), fitted_.flags | Qt::TextDontClip, text(), &written);
  if (!hasFocus()) return;
  painter.setPen(QPen(toColor(look_.foreColor), 1, Qt::DotLine));
  painter.drawRect(written.adjusted(-2, -1, 1, 0));
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
    press();
  } else {
    event->ignore();
  }
}

void LabelWidget::wheelEvent(QWheelEvent* event) {
  if (isScrolled()) {
    QApplication::sendEvent(scrollBar_, event);
  } else {
    event->ignore();
  }
}

}  // namespace mevracard
