// A monkey at the real window: it does whatever mouse, keyboard, window manager and disk may do,
// sensible or not, and holds the game to its promises after each event.
//
//     build/check/tests/monkey EVENTS SEED
//
// The same seed does the same again. Where a promise breaks, the seed, the event's number and what
// led to it are printed. It needs no display, and plays on one with
//
//     LSAN_OPTIONS=suppressions=$PWD/tools/testing/leaks.txt
//       tools/testing/with_display.sh 1366x768 build/check/tests/monkey EVENTS SEED
//
// QT_SCALE_FACTOR=1.5 gives another ratio of pixels.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>

#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

#include "app/program.h"
#include "monkey/promises.h"
#include "painting/offscreen.h"
#include "platform/qt/qt_desktop.h"
#include "store/settings.h"
#include "store/statistics.h"
#include "testing/clock.h"
#include "testing/trail.h"

namespace mevracard::monkey {
namespace {

constexpr int usual = 5000;        // events; every situation of a game comes up in so many
constexpr int atOnce = 5;          // turns of the event loop
constexpr int picturesEvery = 64;  // events; comparing those of all windows takes long

/// Those on the screen, in the order in which they were made.
QWindowList visibleWindows() {
  QWindowList windows = QGuiApplication::topLevelWindows();
  windows.removeIf([](const QWindow* window) { return !window->isVisible(); });
  return windows;
}

/// The real desktop, which has no web browser. An error that is not about a file is the game's own.
class WatchedDesktop final : public QtDesktop {
 public:
  explicit WatchedDesktop(const QString& files)
      : QtDesktop(files.toStdString(), {{std::string(settingsFile), "1/1/99\r\n"},
                                        {std::string(statisticsFile), emptyStatisticsText()}}) {}

  [[nodiscard]] bool speaks() const override { return true; }
  void attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) override {
    windows = forms;
    QtDesktop::attach(std::move(forms), [this, handler = std::move(handler)](const Event& event) {
      if (std::exchange(busy_, true)) fail("broken: an event while the game is at another one");
      if (event.kind == EventKind::SystemEnd) beforeEnd();
      handler(event);
      busy_ = false;
      afterEvent();
    });
  }
  void reportError(std::string_view text) override {
    if (text.find(" cannot be ") == std::string_view::npos) fail("error: " + std::string(text));
    QtDesktop::reportError(text);
  }
  void openAddress(std::string_view /*address*/) override { throw PlatformError("it cannot be "); }

  std::vector<Form*> windows;
  std::function<void()> beforeEnd, afterEvent;

 private:
  bool busy_ = false;
};

class Monkey {
 public:
  Monkey(int events, std::uint64_t seed, QString files)
      : events_(events), left_(events), random_(seed), files_(std::move(files)) {}

  /// Plays one run of the program after the other. False if too little of the game came up.
  bool play() {
    goOn();
    int runs = 0;
    for (; left_ > 0; ++runs) {
      WatchedDesktop desktop(files_);
      Program program(desktop);
      Promises promises(program.window(), met_);
      desktop_ = &desktop;
      promises_ = &promises;
      desktop.afterEvent = [&] {
        if (!endCame_) promises.checkTable();  // it breaks off whatever was under way
      };
      desktop.beforeEnd = [&] { statisticsBefore_ = statistics(); };
      endCame_ = false;
      turnsSince_ = 0;
      program.start();
      desktop.afterEvent();
      if (left_ > 0) desktop.run();
      if (endCame_) checkEnd();
    }
    std::cout << runs << " runs of the program, " << met_.games << " games to their end, "
              << met_.passes << " passes, " << met_.choices << " choices\n";
    return events_ < usual || (met_.games > 0 && met_.passes > 0 && met_.choices > 0);
  }

 private:
  void goOn() {
    QTimer::singleShot(0, qApp, [this] {
      if (left_-- == 0) return QCoreApplication::exit();
      goOn();  // first, as what it does may bring up an event loop of its own
      if (endCame_ && ++turnsSince_ > atOnce) fail("broken: it goes on after the session's end");
      promises_->checkWindows();
      if (left_ % picturesEvery == 0) {
        promises_->checkPictures();
        promises_->checkCoveredCards();
      }
      nextEvent();
      act();
    });
  }

  void act() {
    addTime(1 + random_.below(40));
    if (QApplication::activePopupWidget() != nullptr && oneIn(2))
      return oneIn(2) ? useMenu() : wait();
    QWidget* const box = QApplication::activeModalWidget();
    if (box != nullptr && oneIn(2)) return answer(*box);
    // As a window manager does when the window with the keyboard has gone.
    const QWindowList windows = visibleWindows();
    if (QGuiApplication::focusWindow() == nullptr && !windows.isEmpty() && !oneIn(8)) {
      windows.last()->requestActivate();
    }
    const int lot = random_.below(100);
    if (lot < 28) return lay();
    if (lot < 43) return useControl(true);
    if (lot < 49) return useControl(false);
    if (lot < 53) return useMouse(anyPlace());
    if (lot < 56) return useMenu();
    if (lot < 70) return typeKey();
    if (lot < 90) return wait();
    if (lot < 98) return useWindow();
    if (endCame_) return;  // what it has counted is still to be read
    if (lot < 99 || !oneIn(4)) return tearFile();
    endSession();
  }

  void endSession() {
    note("the session ends");
    endCame_ = true;
    if (oneIn(2)) return (void)std::raise(SIGTERM);
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
  }

  /// A game that was under way is lost, once; one that was over is not.
  void checkEnd() const {
    if (statistics() != statisticsBefore_ &&
        statistics() != withResult(statisticsBefore_, GameResult::Lost)) {
      fail("broken: the session's end is no single loss");
    }
  }

  [[nodiscard]] std::string statistics() const {
    QFile file(files_ + '/' + statisticsFile.data());
    // At a first start it is not there yet.
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : emptyStatisticsText();
  }

  void lay() {
    const Box* card = promises_->fittingCard(random_);
    if (card == nullptr) return;
    note("lay " + card->fullName());
    click(centreOf(*card));
    click(centreOf(*card));
  }

  void useControl(bool buttonsOnly) {
    std::vector<const Box*> found;
    for (const Form* form : desktop_->windows) {
      for (const Control* control : form->controls) {
        const bool button = control->kind == ControlKind::Button;
        const bool drawn =
            control->kind == ControlKind::Line || control->kind == ControlKind::Shape;
        const bool wanted = buttonsOnly ? button : !drawn;
        if (form->visible && control->visible && wanted) {
          found.push_back(static_cast<const Box*>(control));
        }
      }
    }
    if (found.empty()) return;
    const Box& control = *anyOf(found);
    note(control.fullName());
    if (buttonsOnly) return click(centreOf(control));
    useMouse(centreOf(control) + QPoint(random_.below(41) - 20, random_.below(41) - 20));
  }

  void useMouse(QPoint at) {
    const auto button = anyOf(std::array{Qt::LeftButton, Qt::LeftButton, Qt::RightButton});
    const int way = random_.below(5);
    note("mouse way " + std::to_string(way));
    click(at, button);
    if (way == 0) click(at, button);
    if (way == 1 || way == 2) mouse(QEvent::MouseButtonPress, at, button);
    if (way == 2) {
      mouse(QEvent::MouseMove, anyPlace());
      mouse(QEvent::MouseMove, anyPlace());
      mouse(QEvent::MouseButtonRelease, anyPlace(), button);
    }
    QWindow* const window = QGuiApplication::topLevelAt(at);
    if (way != 3 || window == nullptr) return;
    QCoreApplication::postEvent(
        window, new QWheelEvent(window->mapFromGlobal(at), at, {}, {0, oneIn(2) ? 120 : -120},
                                Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
  }

  void useMenu() {
    QWidget* const open = QApplication::activePopupWidget();
    QWidget* menu = open;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      if (menu == nullptr) menu = top->findChild<QMenuBar*>();
    }
    if (menu == nullptr || menu->actions().size() < 2) return key(Qt::Key_Escape);
    // File and Help mostly, as HowToPlay in the bar itself deals anew.
    const auto all = static_cast<int>(menu->actions().size());
    QAction* entry = menu->actions().at(random_.below(oneIn(4) || menu == open ? all : 2));
    note("menu " + entry->text().toStdString());
    const auto* bar = dynamic_cast<const QMenuBar*>(menu);
    const auto* popup = dynamic_cast<const QMenu*>(menu);
    if (bar != nullptr) click(menu->mapToGlobal(bar->actionGeometry(entry).center()));
    if (popup != nullptr) click(menu->mapToGlobal(popup->actionGeometry(entry).center()));
  }

  void answer(QWidget& box) {
    note("answer");
    const auto* button = box.findChild<QAbstractButton*>();
    if (oneIn(20)) return endSession();
    if (oneIn(4)) return key(Qt::Key_Return);
    if (oneIn(3)) return key(Qt::Key_Escape);
    if (oneIn(2) || button == nullptr) return close(*box.windowHandle());
    click(button->mapToGlobal(button->rect().center()));
  }

  void typeKey() {
    Qt::KeyboardModifiers with;
    while (oneIn(4)) {
      with |= anyOf(std::array{Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier});
    }
    int code = anyOf(std::array{Qt::Key_P, Qt::Key_P, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space,
                                Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Left});
    if (oneIn(2)) code = Qt::Key_Space + random_.below(64);
    if (oneIn(6)) code = Qt::Key_Escape + random_.below(64);
    key(code, with, oneIn(16) ? 3 : 0, oneIn(16));
  }

  void wait() {
    const int time = anyOf(std::array{16, 60, 160, 1000, 1000, 2000});  // ms
    note("wait " + std::to_string(time));
    addTime(time);
  }

  void useWindow() {
    const QWindowList windows = visibleWindows();
    if (windows.isEmpty()) return;
    QWindow* const front = QGuiApplication::focusWindow();
    QWindow& window = front != nullptr && oneIn(2) ? *front : *anyOf(windows);
    const bool main = window.type() == Qt::Window;
    const int way = random_.below(7);
    note("window \"" + window.title().toStdString() + "\" way " + std::to_string(way));
    // The main window seldom, or no game would come to its end.
    if (main ? way == 0 && oneIn(8) : way < 3) return close(window);
    constexpr std::array states{Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized};
    if (main && way < 3) window.setWindowStates(anyOf(states));
    if (main && way == 4) window.resize(300 + random_.below(1300), 200 + random_.below(900));
    if (way == 5) window.setPosition(random_.below(800), random_.below(600));
    if (way == 6) window.requestActivate();
  }

  /// Missing, a folder, short, garbage, not to be written, or whole.
  void tearFile() {
    namespace fs = std::filesystem;
    const bool settings = oneIn(2);
    const fs::path path =
        fs::path(files_.toStdString()) / (settings ? settingsFile : statisticsFile);
    const int way = random_.below(8);
    note(path.filename().string() + " way " + std::to_string(way));
    fs::remove_all(path);
    if (way == 1) fs::create_directories(path);
    if (way < 2) return;
    std::string text = settings ? oneIn(2) ? "2/1/99\r\n" : "1/2/70\r\n" : emptyStatisticsText();
    if (way == 2) text.resize(static_cast<std::size_t>(random_.below(8)));
    if (way == 3) {
      for (char& c : text) c = static_cast<char>(random_.below(256));
    }
    std::ofstream(path, std::ios::binary) << text;
    if (way == 4) fs::permissions(path, fs::perms::owner_read);
  }

  // What they do goes the way of the window system's own events, and is taken in by the event loop
  // after the caller has returned.

  /// A window keeps the mouse as long as a button is held on it.
  void mouse(QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::NoButton) {
    const bool held = down_ != Qt::NoButton && holder_ != nullptr;
    QWindow* const window = held ? holder_.data() : QGuiApplication::topLevelAt(at);
    if (button != Qt::NoButton) down_.setFlag(button, type == QEvent::MouseButtonPress);
    if (window == nullptr) return;
    if (type == QEvent::MouseButtonPress) holder_ = window;
    qt_handleMouseEvent(window, window->mapFromGlobal(at), at, down_, button, type, Qt::NoModifier,
                        timeNow());
  }

  void click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    note("click at " + std::to_string(at.x()) + "," + std::to_string(at.y()));
    mouse(QEvent::MouseMove, at);
    mouse(QEvent::MouseButtonPress, at, button);
    mouse(QEvent::MouseButtonRelease, at, button);
  }

  static void key(int key, Qt::KeyboardModifiers with = {}, int repeats = 0, bool held = false) {
    note("key " + std::to_string(key) + " with " + std::to_string(with));
    QWindow* const window = QGuiApplication::focusWindow();
    if (window == nullptr) return;
    const bool typed = key < 128 && (with & ~Qt::ShiftModifier) == Qt::NoModifier;
    const QString text = typed ? QString(QChar(key)).toLower() : QString();
    for (int i = 0; i <= repeats; ++i) {
      qt_handleKeyEvent(window, QEvent::KeyPress, key, with, text, i > 0);
    }
    if (!held) qt_handleKeyEvent(window, QEvent::KeyRelease, key, with, text);
  }

  static void close(QWindow& window) {
    note("close \"" + window.title().toStdString() + "\"");
    QCoreApplication::postEvent(&window, new QCloseEvent);
  }

  [[nodiscard]] QPoint centreOf(const Box& control) const {
    const ScreenPoint centre = desktop_->centreOnScreen(control).value_or(ScreenPoint{-1, -1});
    return {qRound(centre.x), qRound(centre.y)};
  }

  [[nodiscard]] QPoint anyPlace() {
    const QWindowList windows = visibleWindows();
    if (windows.isEmpty()) return {};
    const QRect area = anyOf(windows)->frameGeometry();
    return area.topLeft() + QPoint(random_.below(area.width()), random_.below(area.height()));
  }

  [[nodiscard]] bool oneIn(int times) { return random_.below(times) == 0; }

  template <typename List>
  typename List::value_type anyOf(const List& list) {
    return *std::next(std::begin(list), random_.below(static_cast<int>(std::size(list))));
  }

  const int events_;
  int left_;
  simulate::RandomStream random_;
  QString files_;
  simulate::Met met_;
  WatchedDesktop* desktop_ = nullptr;
  Promises* promises_ = nullptr;
  QPointer<QWindow> holder_;
  Qt::MouseButtons down_;
  bool endCame_ = false;  ///< the session's: the program is to end at once
  int turnsSince_ = 0;    ///< of the event loop
  std::string statisticsBefore_;
};

}  // namespace
}  // namespace mevracard::monkey

int main(int argc, char** argv) {
  using namespace mevracard::monkey;
  const auto number = [&](int i) { return argc == 3 ? std::strtoull(argv[i], nullptr, 10) : 0; };
  const auto events = static_cast<int>(number(1));
  if (events <= 0) {
    std::cerr << "monkey EVENTS SEED\n";
    return 2;
  }
  const QTemporaryDir home;
  mevracard::useOffscreen({1366, 768});
  qputenv("QT_HASH_SEED", "0");
  int nameAlone = 1;
  const QApplication application(nameAlone, argv);
  beginTrail(number(2));
  if (Monkey(events, number(2), home.filePath("data")).play()) return 0;
  std::cerr << "monkey: that was too tame to test anything\n";
  return 1;
}
