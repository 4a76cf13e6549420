#include "platform/qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "platform/qt/button_widget.h"
#include "platform/qt/look.h"
#include "platform/qt/scroll_bar_widget.h"

namespace mevracard {

namespace {

constexpr QSize smallestMainWindow(640, 480);

Qt::WindowFlags flagsOf(const QWidget* mainWindow) {
  if (mainWindow == nullptr) return Qt::Window;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
         Qt::WindowCloseButtonHint;
}

/// The code of a key, 0 for one that the game has no use for.
int keyCodeOf(const QKeyEvent& event) {
  const bool command =
      (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) !=
      Qt::NoModifier;
  if (command) return 0;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return keyEnter;
    case Qt::Key_Escape:
      return keyEscape;
    default:
      break;
  }
  const QString text = event.text();
  return text.size() == 1 && text[0].isPrint() ? text[0].unicode() : 0;
}

/// A widget that has the keyboard without the game's knowing: a link, the scroll bar of a text.
bool isOutsideTheModel(const QWidget& widget) {
  return dynamic_cast<const ButtonWidget*>(&widget) == nullptr &&
         dynamic_cast<const ScrollBarWidget*>(&widget) == nullptr;
}

}  // namespace

FormWindow::FormWindow(Form& form, Deliver deliver, QWidget* mainWindow)
    : QMainWindow(mainWindow, flagsOf(mainWindow)),
      form_(form),
      deliver_(std::move(deliver)),
      client_(new Surface(form.controls, *this, *this)),
      glides_(*client_) {
  setObjectName(toText(form.name));
  setCentralWidget(client_);
  const QSize size(static_cast<int>(toPixels(form.width)), static_cast<int>(toPixels(form.height)));
  if (!form.menu.empty()) {
    menu_ = std::make_unique<Menu>(*menuBar(), form.menu, [this](MenuEntry& entry) {
      deliver_({EventKind::Menu, &form_, nullptr, &entry, 0});
    });
  }
  if (mainWindow == nullptr) {
    setMinimumSize(smallestMainWindow);
    resize(size);
  } else {
    setFixedSize(size);
  }
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FormWindow::tick);
}

void FormWindow::flush() {
  flushing_ = true;
  setWindowTitle(toText(form_.caption));
  const Position position{form_.left, form_.top};
  if (std::exchange(flushedPosition_, position) != position) placeOnScreen();
  if (menu_ != nullptr) {
    menu_->flush();
    menuBar()->setEnabled(form_.enabled);
  }
  client_->setEnabled(form_.enabled);
  client_->flush(form_.backColor);
  flushTimer();
  flushFocus();
  flushing_ = false;
  glides_.start();
}

void FormWindow::flushTimer() {
  if (form_.timer == nullptr) return;
  const Timer& timer = *form_.timer;
  if (!timer.enabled) {
    timer_.stop();
    tickDue_ = false;
  } else if (timer.armings != armings_) {
    timer_.start(timer.interval);
    tickDue_ = false;
  }
  armings_ = timer.armings;
}

void FormWindow::flushFocus() {
  QWidget* now = focusWidget();
  const bool playersOwn = now != nullptr && isOutsideTheModel(*now) && now->isVisible();
  const bool asBefore = form_.focus == std::exchange(flushedFocus_, form_.focus);
  if (playersOwn && asBefore) return;
  // The client area takes the keyboard for want of another, lest the toolkit give it to a link.
  QWidget* wanted = form_.focus != nullptr ? widgetOf(*form_.focus) : client_;
  if (wanted != nullptr && now != wanted) wanted->setFocus(Qt::OtherFocusReason);
}

void FormWindow::open() {
  flush();
  if (form_.maximized) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    if (!isVisible()) showMaximized();
  } else {
    if (!isVisible()) placeOnScreen();
    showNormal();
  }
  raise();
  activateWindow();
}

void FormWindow::placeOnScreen() {
  const QRect room = screen()->availableGeometry();
  QRect place(QPoint(), size());
  if (form_.left != 0 || form_.top != 0) {
    place.moveTopLeft(QPointF(toPixels(form_.left), toPixels(form_.top)).toPoint());
  } else {
    place.moveCenter(parentWidget() != nullptr ? areaOf(*parentWidget()).center() : room.center());
  }
  const int right = std::max(room.left(), room.right() - place.width());
  const int bottom = std::max(room.top(), room.bottom() - place.height());
  move(std::clamp(place.left(), room.left(), right), std::clamp(place.top(), room.top(), bottom));
}

QWidget* FormWindow::widgetOf(const Control& control) const { return client_->widgetOf(control); }

void FormWindow::send(EventKind kind, Control& control, int value) {
  deliver_({kind, &form_, &control, nullptr, value});
}

void FormWindow::focusMoved(Control& control, Qt::FocusReason reason) {
  const bool byPlayer = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
                        reason == Qt::BacktabFocusReason;
  if (!flushing_ && byPlayer) form_.focus = flushedFocus_ = &control;
}

bool FormWindow::event(QEvent* event) {
  // A player who clicks on the disabled window would else type into nothing.
  if (event->type() == QEvent::WindowActivate && !form_.enabled) passKeyboardOn();
  return QMainWindow::event(event);
}

void FormWindow::passKeyboardOn() {
  for (QObject* child : children()) {
    auto* window = dynamic_cast<FormWindow*>(child);
    if (window == nullptr || !window->isVisible() || !window->form_.enabled) continue;
    window->raise();
    window->activateWindow();
  }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const int key = keyCodeOf(*event);
  const bool usable = form_.enabled && form_.focus != nullptr && form_.focus->usable();
  if (key != 0 && usable) deliver_(keyEvent(form_, key));
}

void FormWindow::tick() {
  if (form_.timer == nullptr || !form_.timer->enabled) return;
  tickDue_ = !deliver_({EventKind::Tick, &form_, nullptr, nullptr, 0});
}

void FormWindow::deliverDueTick() {
  if (std::exchange(tickDue_, false)) tick();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (form_.enabled) deliver_({EventKind::Close, &form_, nullptr, nullptr, 0});
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  glides_.endAll();
  QMainWindow::resizeEvent(event);
}

void FormWindow::hideEvent(QHideEvent* event) {
  glides_.endAll();
  QMainWindow::hideEvent(event);
}

}  // namespace mevracard
