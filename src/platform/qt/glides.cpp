#include "platform/qt/glides.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLineF>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "platform/qt/reduced_motion.h"

namespace mevracard {

namespace {

constexpr double duration = 150;  // ms

/// The point at a share of the way along a line of points.
QPointF pointAt(const std::vector<QPointF>& path, double share) {
  double length = 0;
  for (std::size_t i = 1; i < path.size(); ++i) length += QLineF(path[i - 1], path[i]).length();
  double rest = length * share;
  for (std::size_t i = 1; i < path.size(); ++i) {
    const QLineF part(path[i - 1], path[i]);
    if (rest <= part.length() && part.length() > 0) return part.pointAt(rest / part.length());
    rest -= part.length();
  }
  return path.back();
}

/// Quick at first, slow towards the end.
double eased(double share) { return 1 - (1 - share) * (1 - share); }

/// Puts the picture just in front of the widget, behind all that lies in front of that.
void stackAbove(QWidget& picture, const QWidget& widget) {
  const QObjectList& siblings = widget.parentWidget()->children();
  for (auto i = siblings.indexOf(&widget) + 1; i < siblings.size(); ++i) {
    auto* next = qobject_cast<QWidget*>(siblings[i]);
    if (next != nullptr && next != &picture && !next->isWindow()) {
      picture.stackUnder(next);
      return;
    }
  }
}

}  // namespace

Glides::Glides(QWidget& canvas) : canvas_(canvas) {
  frame_.setTimerType(Qt::PreciseTimer);
  connect(&frame_, &QTimer::timeout, this, &Glides::advance);
}

void Glides::plan(QWidget& widget, std::vector<QPointF> path) {
  planned_.push_back({&widget, std::move(path), nullptr, {}});
}

void Glides::start() {
  for (Glide& glide : std::exchange(planned_, {})) {
    const QWidget& widget = *glide.widget;
    const bool seen = widget.isVisible() && !canvas_.window()->isMinimized() &&
                      !widget.size().isEmpty() && canvas_.rect().intersects(widget.geometry());
    // After absurd rescaling one card may fill the table many times over.
    const bool handy = widget.width() <= canvas_.width() && widget.height() <= canvas_.height();
    if (seen && handy && glide.path.size() > 1 && !motionIsReduced()) begin(std::move(glide));
  }
}

void Glides::begin(Glide glide) {
  glide.picture = std::make_unique<QLabel>(&canvas_);
  glide.picture->setAttribute(Qt::WA_TransparentForMouseEvents);
  glide.picture->setPixmap(glide.widget->grab());
  glide.picture->setGeometry({glide.path.front().toPoint(), glide.widget->size()});
  stackAbove(*glide.picture, *glide.widget);
  glide.picture->show();
  auto* unseen = new QGraphicsOpacityEffect(glide.widget);
  unseen->setOpacity(0);
  glide.widget->setGraphicsEffect(unseen);
  glide.time.start();
  running_.push_back(std::move(glide));
  if (frame_.isActive()) return;
  const double rate = std::clamp(canvas_.screen()->refreshRate(), 30.0, 250.0);
  frame_.start(static_cast<int>(1000 / rate));
  QApplication::instance()->installEventFilter(this);
}

void Glides::advance() {
  for (Glide& glide : running_) {
    const double share = static_cast<double>(glide.time.elapsed()) / duration;
    if (share >= 1) {
      finish(glide);
    } else {
      glide.picture->move(pointAt(glide.path, eased(share)).toPoint());
    }
  }
  stopIfDone();
}

void Glides::finish(Glide& glide) {
  glide.picture.reset();
  glide.widget->setGraphicsEffect(nullptr);
}

void Glides::end(const QWidget& widget) {
  for (Glide& glide : running_) {
    if (glide.widget == &widget) finish(glide);
  }
  stopIfDone();
}

void Glides::endAll() {
  for (Glide& glide : running_) finish(glide);
  stopIfDone();
}

void Glides::stopIfDone() {
  std::erase_if(running_, [](const Glide& glide) { return glide.picture == nullptr; });
  if (!running_.empty() || !frame_.isActive()) return;
  frame_.stop();
  QApplication::instance()->removeEventFilter(this);
}

bool Glides::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::KeyPress:
      endAll();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mevracard
