#include "platform/qt/voice.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTimer>
#include <utility>

#include "platform/qt/focus_reports.h"
#include "platform/qt/look.h"
#include "platform/qt/menu.h"

namespace mevracard {

Voice::Voice(Speech& speech, QWidget& canvas) : speech_(speech), canvas_(canvas) {
  canvas.installEventFilter(this);
}

void Voice::flush(QWidget& keyboard) {
  keyboard_ = &keyboard;
  if (QAccessible::isActive()) {
    makePlaces();
    reportChanges(told_, speech_.lists, canvas_);
  }
  if (QAccessible::isActive() || told_.empty()) told_ = speech_.lists;
  waiting_ = waiting_ && speech_.unsaid;
  if (speech_.unsaid) writeNews();
  if (!isMenuInUse()) keyboard.setFocus(Qt::OtherFocusReason);
  if (waiting_) speakSoon();
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
  if (!waiting_ && !isMenuInUse()) {
    places_[0]->setFocusPolicy(Qt::NoFocus);
    std::swap(places_[0], places_[1]);
  }
  waiting_ = true;
  QString news = toText(speech_.news);
  // A reader takes a part with the same words for the one that it has just read.
  if (news == places_[1]->accessibleName()) news += ' ';
  if (places_[0]->accessibleName() != news) places_[0]->setAccessibleName(news);
  canvas_.setFocusProxy(places_[0]);
  places_[0]->setFocusPolicy(canvas_.focusPolicy());
}

bool Voice::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &canvas_) {
    if (event->type() == QEvent::WindowActivate) {
      activeSince_.start();
      speakSoon();
    }
    if (event->type() == QEvent::WindowDeactivate) newsFollows_ = isBehindAnother();
  } else if (watched == places_[0] && event->type() == QEvent::FocusIn) {
    keyboardCame(static_cast<QFocusEvent&>(*event));
  }
  return QObject::eventFilter(watched, event);
}

void Voice::keyboardCame(QFocusEvent& focusIn) {
  lineDue_ = !newsFollows_ || focusIn.reason() != Qt::ActiveWindowFocusReason;
  speakSoon();
  QCoreApplication::sendEvent(&canvas_, &focusIn);
}

void Voice::speakSoon() {
  QTimer::singleShot(0, this, [this] { speak(); });
}

bool Voice::isBehindAnother() const {
  const QWidget* box = QApplication::activeModalWidget();
  return !canvas_.isEnabled() || (box != nullptr && box != canvas_.window());
}

void Voice::speak() {
  // A window manager may give a new window the keyboard, take it away and give it again; a reader
  // would then drop what it was told in between.
  constexpr int settling = 200;  // ms
  if (activeSince_.isValid() && !activeSince_.hasExpired(settling)) {
    QTimer::singleShot(settling, this, [this] { speak(); });
    return;
  }
  bool lineDue = std::exchange(lineDue_, false) && places_[0]->hasFocus();
  if (lineDue && keyboard_ != nullptr) {
    keyboard_->setFocus(Qt::OtherFocusReason);  // it may have gone on to a widget meanwhile
    lineDue = places_[0]->hasFocus();
  }
  const bool hasTheWord = canvas_.isActiveWindow() && !isMenuInUse() && !isBehindAnother();
  if ((!waiting_ && !lineDue) || !hasTheWord) return;
  if (!waiting_) places_[0]->setAccessibleName(toText(speech_.line));
  reportFocus(*places_[0]);
  if (std::exchange(waiting_, false)) speech_.unsaid = false;
}

}  // namespace mevracard
