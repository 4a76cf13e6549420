#include "platform/qt/canvas.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <algorithm>
#include <utility>

#include "platform/qt/look.h"
#include "platform/qt/paint.h"

namespace mevracard {

Canvas::Canvas(Form& form, ControlEvents& events, QWidget& parent)
    : QWidget(&parent),
      form_(form),
      events_(events),
      glides_([this] { repaintChanges(); }),
      widgets_(form, events, *this) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

double Canvas::growth() const {
  const double wanted = growthOf(*this);
  if (form_.whole == nullptr) return wanted;
  // The panels of the table have room in its smallest window.
  const QSize smallest = window()->minimumSize();
  const double most = std::min(double(window()->width()) / smallest.width(),
                               double(window()->height()) / smallest.height());
  return std::clamp(most, 1.0, wanted);
}

Views Canvas::viewsNow() const {
  const double ratio = devicePixelRatioF();
  const QSize size = (QSizeF(this->size()) * ratio).toSize();
  return viewsOf(form_, {0, 0, size.width(), size.height()}, ratio, growth());
}

void Canvas::flush() {
  const Control* fallback = form_.defaultFocus;
  const bool holdsKeyboard = fallback != nullptr && fallback->usable() && !isWidget(*fallback);
  setFocusPolicy(holdsKeyboard ? Qt::TabFocus : Qt::NoFocus);
  if (auto glides = std::exchange(form_.glides, {}); isVisible() && !window()->isMinimized()) {
    glides_.start(std::move(glides), picture_);
  }
  repaintChanges();
}

void Canvas::repaintChanges() {
  const Views viewsBefore = std::exchange(views_, viewsNow());
  const Picture before = std::exchange(
      picture_,
      pictureOf(form_, views_, [this](const Frame& frame) { return glides_.placeOf(frame); }));
  if (views_ != viewsBefore) glides_.forgetSeen();
  glides_.keepWaiting(picture_);
  const Color colorBefore = std::exchange(backColor_, form_.backColor);
  if (views_ != viewsBefore || backColor_ != colorBefore) {
    update();
  } else {
    for (const Dots& dots : difference(before, picture_)) update(toPixels(dots));
  }
  widgets_.flush(views_);
}

int Canvas::heightOfAll() { return widgets_.heightOfAll(viewsNow()); }

QRect Canvas::toPixels(const Dots& dots) const {
  const double ratio = devicePixelRatioF();
  return QRectF(QPointF(dots.left, dots.top) / ratio, QSizeF(dots.width, dots.height) / ratio)
      .toAlignedRect()
      .adjusted(-1, -1, 1, 1);
}

QPoint Canvas::toPixels(WindowPoint twips) const {
  const QPointF dots(views_.table.x(twips.left), views_.table.y(twips.top));
  return (dots / devicePixelRatioF()).toPoint();
}

QRect Canvas::placeOf(const Box& control) const {
  if (const QWidget* widget = widgets_.of(control)) return widget->geometry();
  const QRectF dots(toRect(views_.placeOf(control)));
  const double ratio = devicePixelRatioF();
  return QRectF(dots.topLeft() / ratio, dots.size() / ratio).toRect();
}

Control* Canvas::controlAt(QPointF point) const {
  const QPoint dot = (point * devicePixelRatioF()).toPoint();
  return mevracard::controlAt(picture_, dot.x(), dot.y());
}

QWidget& Canvas::keyboardOf(const Control* control) {
  QWidget* own = control != nullptr ? widgets_.of(*control) : nullptr;
  return own != nullptr ? *own : *this;
}

void Canvas::paintEvent(QPaintEvent* event) {
  // The window may have moved to a screen with other dots.
  if (viewsNow() != views_) repaintChanges();
  DotPainter painter(*this);
  painter.fillRect(toRect(views_.window.grown(1)), toColor(backColor_));
  for (const Item& item : picture_) {
    if (event->region().intersects(toPixels(item.bounds()))) paint(painter, item);
  }
}

void Canvas::resizeEvent(QResizeEvent* /*event*/) {
  glides_.end();
  repaintChanges();
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (Control* control = controlAt(event->position())) {
    events_.send(EventKind::DoubleClick, *control);
  }
}

void Canvas::focusInEvent(QFocusEvent* event) {
  if (form_.defaultFocus != nullptr) events_.focusMoved(*form_.defaultFocus, event->reason());
}

}  // namespace mevracard
