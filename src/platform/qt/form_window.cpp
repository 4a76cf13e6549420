#include "platform/qt/form_window.h"

#include <QCloseEvent>
#include <QScreen>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/qt/key_code.h"
#include "platform/qt/look.h"
#include "platform/view.h"

namespace mevracard {

namespace {

constexpr QSize smallestMainWindow(640, 480);

Qt::WindowFlags flagsOf(const QWidget* mainWindow) {
  if (mainWindow == nullptr) return Qt::Window;
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
         Qt::WindowCloseButtonHint;
}

}  // namespace

FormWindow::FormWindow(Form& form, Deliver deliver, FormWindow* mainWindow)
    : QMainWindow(mainWindow, flagsOf(mainWindow)),
      form_(form),
      deliver_(std::move(deliver)),
      main_(mainWindow),
      canvas_(new Canvas(form, *this, *this)),
      voice_(form.speech, *canvas_) {
  setObjectName(toText(form.name));
  setCentralWidget(canvas_);
  if (!form.menu.empty()) {
    menu_ = std::make_unique<Menu>(*menuBar(), form.menu, [this](MenuEntry& entry) {
      deliver_({EventKind::Menu, &form_, nullptr, &entry, 0});
    });
  }
  if (mainWindow == nullptr) {
    setMinimumSize(smallestMainWindow);
    resize((QSizeF(form.width, form.height) / twipsPerDesignPixel).toSize());
  }
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &FormWindow::tick);
}

void FormWindow::flush() {
  flushing_ = true;
  setWindowTitle(toText(form_.caption));
  if (main_ != nullptr) flushSize();
  const Whereabouts whereabouts{{form_.left, form_.top}, form_.placed};
  const bool elsewhere = std::exchange(flushedWhereabouts_, whereabouts) != whereabouts;
  if (main_ != nullptr && isVisible()) elsewhere ? moveToItsPlace() : makeWay();
  if (menu_ != nullptr) {
    menu_->flush();
    menuBar()->setEnabled(form_.enabled);
  }
  canvas_->setEnabled(form_.enabled);
  // Before the widget goes that has the keyboard: the toolkit would pass it on as it likes.
  if (form_.focus == nullptr || !isWidget(*form_.focus)) flushFocus();
  canvas_->flush();
  flushTimer();
  flushFocus();
  flushing_ = false;
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
  const bool unseen = form_.focus != nullptr && form_.focus->kind == ControlKind::Button &&
                      static_cast<const Button*>(form_.focus)->keysOnly;
  if (unseen && form_.seenFocus != nullptr) form_.giveFocus(*form_.seenFocus);
  QWidget& wanted = canvas_->keyboardOf(form_.focus);
  const bool asBefore = form_.focus == std::exchange(flushedFocus_, form_.focus);
  // The player may have taken it to a link or a text, of which the game knows nothing.
  QWidget* now = focusWidget();
  const bool stays = asBefore && now != nullptr && now->isVisible() && canvas_->isPlayersOwn(*now);
  voice_.flush(stays ? *now : wanted);
}

void FormWindow::open() {
  // Whoever opens it with a key shall not find that key on Clear.
  if (main_ != nullptr && !isVisible() && form_.defaultFocus != nullptr) {
    form_.giveFocus(*form_.defaultFocus);
  }
  flush();
  if (form_.maximized) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    if (!isVisible()) showMaximized();
  } else {
    if (!isVisible()) moveToItsPlace();
    showNormal();
  }
  raise();
  activateWindow();
}

QSize FormWindow::frame() const {
  // Before it is shown its frame is unknown, but not unlike the main window's.
  const FormWindow& window = isVisible() ? *this : *main_;
  return window.frameGeometry().size() - window.size();
}

void FormWindow::flushSize() {
  const double pixels = growthOf(*main_) / twipsPerDesignPixel;
  const QSize design = (QSizeF(form_.width, form_.height) * pixels).toSize();
  const int most = main_->screen()->availableGeometry().height() - frame().height();
  const int height = std::max(design.height(), std::min(most, canvas_->heightOfAll()));
  if (size() != QSize(design.width(), height)) setFixedSize(design.width(), height);
}

ClearGroups FormWindow::clearGroups(bool always) const {
  constexpr int gap = 6;  // pixels
  ClearGroups groups;
  for (const KeptClear& kept : form_.clearOf()) {
    if (always && !kept.always) continue;
    groups.emplace_back();
    for (const Box* box : kept.boxes) {
      if (box->visible) groups.back().push_back(toDots(main_->placeOnScreen(*box)).grown(gap));
    }
  }
  return groups;
}

std::optional<Dots> FormWindow::aboveOrBelowTable(const Dots& wanted) const {
  const Dots window = toDots(areaOf(*main_));
  const Dots room{placeInside(wanted, window).left, window.top, wanted.width, window.height};
  const ClearGroups table{{toDots(main_->placeOnScreen(*main_->form_.whole))}};
  const Dots place = clearPlace(wanted, room, table);
  const bool clear = coveredBy(place, table) == std::vector<long>(1);
  return clear ? std::optional(place) : std::nullopt;
}

void FormWindow::moveToItsPlace() {
  const Canvas& table = *main_->canvas_;
  const Dots room = toDots(main_->screen()->availableGeometry());
  const QSize whole = size() + frame();
  const QPoint wanted = table.mapToGlobal(table.toPixels(WindowPoint{form_.left, form_.top}));
  if (const Dots place = toDots({wanted, whole}); form_.placed) {
    const Dots best = aboveOrBelowTable(place).value_or(place);
    if (placeInside(best, room) == best) return moveTo(best);
  }
  QRect middle(QPoint(), whole);
  middle.moveCenter(areaOf(*main_).center());
  moveTo(clearPlace(toDots(middle), room, clearGroups(false)));
}

void FormWindow::makeWay() {
  const QRect now = frameGeometry();
  const bool movedByPlayer = (now.topLeft() - movedTo_).manhattanLength() > frame().height();
  if (form_.placed || movedByPlayer) return;
  const Dots room = toDots(main_->screen()->availableGeometry());
  const ClearGroups musts = clearGroups(true);
  const std::vector<long> covered = coveredBy(toDots(now), musts);
  const bool fits = room.holds(toDots(now));
  if (fits && covered == std::vector<long>(musts.size())) return;
  const Dots better = clearPlace(toDots(now), room, clearGroups(false));
  if (!fits || coveredBy(better, musts) < covered) moveTo(better);
}

void FormWindow::moveTo(const Dots& place) {
  movedTo_ = {place.left, place.top};
  move(movedTo_);
}

QRect FormWindow::placeOnScreen(const Box& control) const {
  const QRect place = canvas_->placeOf(control);
  return {canvas_->mapToGlobal(place.topLeft()), place.size()};
}

QPoint FormWindow::middle() const {
  // A window that is about to fill the screen has another size yet.
  constexpr int frame = 16;  // pixels that it may have less all the same
  const QRect screens = areaOf(*this);
  if (std::abs(screens.width() - width()) > frame) {
    return screens.center() + QPoint(0, canvas_->y() / 2);
  }
  return canvas_->mapToGlobal(canvas_->rect().center());
}

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
  const int key = isMenuInUse() ? 0 : keyCodeOf(*event);
  if (key == 0 || !form_.enabled || (key == keyEscape && escape())) return;
  deliver_(keyEvent(form_, key));
}

bool FormWindow::escape() {
  const auto found = std::find_if(form_.escape.begin(), form_.escape.end(),
                                  [](const Button* button) { return button->usable(); });
  if (found != form_.escape.end()) {
    send(EventKind::Click, **found, 0);
  } else if (main_ != nullptr) {
    close();
  }
  return found != form_.escape.end() || main_ != nullptr;
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

void FormWindow::hideEvent(QHideEvent* event) {
  canvas_->endGlides();
  QMainWindow::hideEvent(event);
}

}  // namespace mevracard
