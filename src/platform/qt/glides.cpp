#include "platform/qt/glides.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/reduced_motion.h"

namespace mevracard {

namespace {

constexpr int longestOne = 150;   // ms
constexpr int longestTurn = 600;  // ms

}  // namespace

Glides::Glides(std::function<void()> changed) : changed_(std::move(changed)) {
  connect(&clock_, &QVariantAnimation::valueChanged, this, [this] { changed_(); });
  connect(&clock_, &QVariantAnimation::finished, this, &Glides::end);
}

void Glides::start(std::vector<Glide> glides, const Picture& seen) {
  if (glides.empty() || motionIsReduced()) return;
  glides_ = std::move(glides);
  seen_ = seen;
  const int count = static_cast<int>(glides_.size());
  clock_.stop();
  clock_.setStartValue(0.0);
  clock_.setEndValue(static_cast<double>(count));
  clock_.setDuration(std::min(count * longestOne, longestTurn));
  clock_.start();
  QCoreApplication::instance()->installEventFilter(this);
}

void Glides::end() {
  if (glides_.empty()) return;
  QCoreApplication::instance()->removeEventFilter(this);
  glides_.clear();
  seen_.clear();
  clock_.stop();
  changed_();
}

WindowPoint Glides::placeOf(const Frame& frame) const {
  const WindowPoint own{frame.left, frame.top};
  const auto glide = std::find_if(glides_.begin(), glides_.end(),
                                  [&frame](const Glide& g) { return g.frame == &frame; });
  if (glide == glides_.end()) return own;
  const double turn = clock_.currentValue().toDouble() - double(glide - glides_.begin());
  if (turn >= 1) return own;
  // Quick at first, slow towards the end.
  const auto way = static_cast<float>(QEasingCurve(QEasingCurve::OutQuad).valueForProgress(turn));
  return {std::lerp(glide->from.left, glide->to.left, way),
          std::lerp(glide->from.top, glide->to.top, way)};
}

void Glides::keepWaiting(Picture& picture) const {
  for (std::size_t i = 0; i < glides_.size(); ++i) {
    if (clock_.currentValue().toDouble() < double(i)) keepLook(picture, *glides_[i].frame, seen_);
  }
}

bool Glides::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
    case QEvent::KeyPress:
      end();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mevracard
