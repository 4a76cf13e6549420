#include "platform/qt/voice.h"

#include <QApplication>
#include <QFocusEvent>
#include <QScrollBar>
#include <QTimer>
#include <utility>

#include "platform/qt/look.h"

namespace mevracard {

namespace {

bool isMenuOpen() { return QApplication::activePopupWidget() != nullptr; }

}  // namespace

Voice::Voice(Speech& speech, QWidget& canvas) : speech_(speech), canvas_(canvas) {}

void Voice::flush(QWidget& keyboard) {
  keyboard_ = &keyboard;
  if (QAccessible::isActive()) {
    makePlaces();
    reportChanges(told_, speech_.lists, canvas_);
  }
  if (QAccessible::isActive() || told_.empty()) told_ = speech_.lists;
  waiting_ = waiting_ && speech_.unsaid;
  if (speech_.unsaid) writeNews();
  if (!isMenuOpen()) moveKeyboard();
}

void Voice::moveKeyboard() {
  // A scroll bar tells its number itself, unless the news that tells it has come after it.
  const bool tellsNumber = qobject_cast<QScrollBar*>(keyboard_) != nullptr;
  if (!waiting_ || tellsNumber) keyboard_->setFocus(Qt::OtherFocusReason);
  if (!waiting_) return;
  if (tellsNumber && keyboard_->hasFocus()) {
    reportFocus();
  } else {
    places_[0]->setFocus();
  }
}

void Voice::reportFocus() {
  QAccessibleEvent event(places_[0], QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
  said();
}

void Voice::makePlaces() {
  if (places_[0] == nullptr) {
    for (NewsPlace*& place : places_) {
      place = new NewsPlace(canvas_);
      place->installEventFilter(this);
    }
    canvas_.setFocusProxy(places_[0]);
  }
  places_[0]->setFocusPolicy(canvas_.focusPolicy());
}

void Voice::writeNews() {
  makePlaces();
  // What comes while a menu is open follows it, and that is where the keyboard will come back to.
  if (!waiting_ && !isMenuOpen()) {
    places_[0]->setFocusPolicy(Qt::NoFocus);
    std::swap(places_[0], places_[1]);
  }
  waiting_ = true;
  if (const QString news = toText(speech_.news); places_[0]->accessibleName() != news) {
    places_[0]->setAccessibleName(news);
  }
  canvas_.setFocusProxy(places_[0]);
  places_[0]->setFocusPolicy(canvas_.focusPolicy());
}

void Voice::said() {
  waiting_ = false;
  speech_.unsaid = false;
}

bool Voice::eventFilter(QObject* watched, QEvent* event) {
  if (watched == places_[0] && event->type() == QEvent::FocusIn) {
    keyboardCame(static_cast<QFocusEvent&>(*event));
  }
  return QObject::eventFilter(watched, event);
}

void Voice::keyboardCame(QFocusEvent& focusIn) {
  const bool byPopup = focusIn.reason() == Qt::PopupFocusReason;
  if (!waiting_ && !byPopup) places_[0]->setAccessibleName(toText(speech_.line));
  if (waiting_ && byPopup) reportFocus();
  if (waiting_) said();
  // The toolkit has yet to report that the keyboard is here.
  QTimer::singleShot(0, this, [this] {
    if (keyboard_ != nullptr && !isMenuOpen()) keyboard_->setFocus(Qt::OtherFocusReason);
  });
  QCoreApplication::sendEvent(&canvas_, &focusIn);
}

}  // namespace mevracard
