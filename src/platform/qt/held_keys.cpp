#include "platform/qt/held_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace mevracard {

namespace {

bool actsOnce(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
         key == Qt::Key_Escape;
}

}  // namespace

HeldKeys::HeldKeys() { QCoreApplication::instance()->installEventFilter(this); }

bool HeldKeys::isRepeat(const QKeyEvent& press) const {
  // A held key comes as releases and presses in turn, each pair with one time. The toolkit takes
  // them for a pair only if the second has arrived by the time it looks at the first.
  const bool sameMoment = press.timestamp() != 0 && press.timestamp() == releaseTime_;
  return press.isAutoRepeat() || (sameMoment && press.key() == releasedKey_);
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyRelease) {
    const auto& release = *static_cast<QKeyEvent*>(event);
    releasedKey_ = release.key();
    releaseTime_ = release.timestamp();
  } else if (event->type() == QEvent::KeyPress) {
    const auto& press = *static_cast<QKeyEvent*>(event);
    if (actsOnce(press.key()) && isRepeat(press)) return true;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mevracard
