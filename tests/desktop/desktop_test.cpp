// What only a real screen has: the X server's mouse, keyboard and pointer, and a window manager.
#include <QApplication>
#include <QProcess>
#include <QScreen>

#include <QtTest/QTest>
#include <gtest/gtest.h>

#include "game/rules.h"
#include "stage/window_game.h"

namespace mevracard {
namespace {

/// What the X test tool prints.
QByteArray xdotool(const QStringList& arguments) {
  QProcess process;
  process.start("xdotool", arguments);
  process.waitForFinished();
  return process.readAllStandardOutput().trimmed();
}

/// Lets the program run until this holds; false if it never seems to.
bool waitFor(const std::function<bool()>& condition) {
  constexpr int patience = 60'000;  // ms, for a machine that has other things to do
  return QTest::qWaitFor(condition, patience);
}

/// A running game in its real window, played with the X server's own mouse and keyboard.
class Screen final : public WindowGame {
 public:
  explicit Screen(const std::string& settings = "1/1/99") : WindowGame(3, settings) {}

  /// Until the main window fills the screen and has the keyboard.
  void start() {
    WindowGame::start();
    constexpr int frame = 16;  // pixels
    const auto stands = [this] {
      const QWidget& main = windowOf(window().form);
      return hasKeyboard(window().form) &&
             main.width() >= main.screen()->availableGeometry().width() - frame;
    };
    // Of a box that is closed at once the window manager may give the keyboard to nobody.
    if (!QTest::qWaitFor(stands, 10'000)) windowOf(window().form).activateWindow();
  }

  [[nodiscard]] FormWindow& windowOf(const Form& form) const {
    const auto& windows = desktop().windows();
    return **std::find_if(windows.begin(), windows.end(),
                          [&](const auto& window) { return &window->form() == &form; });
  }

  /// Whether the X server sends its keys to this window.
  [[nodiscard]] bool hasKeyboard(const Form& form) const {
    return form.visible && windowOf(form).isActiveWindow() &&
           xdotool({"getwindowfocus"}).toULongLong() == windowOf(form).winId();
  }

  /// Presses a key by its X name until this holds: the window manager may still be taking the
  /// keyboard about, and a key is lost then, or have given it to nobody.
  bool keyUntil(const char* name, const std::function<bool()>& condition) {
    for (int presses = 0; presses < 6; ++presses) {
      xdotool({"key", name});
      if (QTest::qWaitFor(condition, 10'000)) return true;
      windowOf(window().form).activateWindow();
    }
    return false;
  }

  /// Each key but the last one opens the menu that the next one goes to.
  void chooseFromMenu(const std::vector<const char*>& keys) {
    // A window that has just been closed gives the keyboard back in its own time.
    ASSERT_TRUE(waitFor([this] { return hasKeyboard(window().form); }));
    for (const char* const& key : keys) {
      if (&key == &keys.back()) return (void)xdotool({"key", key});
      const QWidget* before = QApplication::activePopupWidget();
      ASSERT_TRUE(keyUntil(key, [&] { return QApplication::activePopupWidget() != before; }));
    }
  }
};

// Access keys and check marks; a level deals anew without the abort message. A window that opens
// takes the keyboard, and gives it back when it closes.
TEST(Menus, AnswerAccessKeys) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  screen.chooseFromMenu({"alt+f", "c", "2"});
  ASSERT_TRUE(
      waitFor([&] { return w.menu.computerLevel2.checked && screen.messages.size() == 2; }));
  EXPECT_FALSE(w.menu.computerLevel1.checked);
  screen.chooseFromMenu({"alt+f", "s"});
  ASSERT_TRUE(waitFor([&] { return screen.hasKeyboard(w.statistics.form); }));
  Screen::shoot("statistics");
  EXPECT_FALSE(w.form.enabled);
  xdotool({"key", "Return"});
  ASSERT_TRUE(waitFor([&] { return w.form.enabled; }));
  screen.chooseFromMenu({"alt+h", "a"});
  ASSERT_TRUE(waitFor([&] { return screen.hasKeyboard(w.about.form); }));
  Screen::shoot("about");
  xdotool({"key", "alt+F4"});
  ASSERT_TRUE(waitFor([&] { return !w.about.form.visible; }));
  screen.chooseFromMenu({"alt+f", "n"});
  ASSERT_TRUE(waitFor([&] { return screen.messages.size() == 4; }));
  EXPECT_EQ(screen.messages[2], "Aborting makes you lose this game");
}

// The system's own pointer must end on the marked number wherever the card stands and at every
// size.
TEST(Tutorial, EndsOnTheMarkedNumber) {
  for (const auto& [column, settings] : {std::pair{0, "1/1/99"}, {6, "1/1/70"}, {13, "1/1/99"}}) {
    SCOPED_TRACE(column);
    Screen screen(settings);
    screen.start();
    ASSERT_TRUE(screen.keyUntil("alt+p", [&] { return screen.messages.size() >= 2; }));
    MainWindow& w = screen.window();
    w.timer.disarm();
    // Only the card in this column fits: its lower number, at the Right/Top end.
    for (const int slot : handOf(Side::Player)) w.game.card(slot) = {6, 6, w.game.card(slot).held};
    w.game.card(column) = {6, 0, true};
    w.game.chain.openNumber = {};
    const QPoint next = screen.windowOf(w.form).placeOnScreen(w.tutorial.next).center();
    xdotool({"mousemove", QString::number(next.x()), QString::number(next.y()), "click", "1"});
    ASSERT_TRUE(waitFor([&] { return w.state.demo.busy; }));
    const Label& marked = w.card(column).lower;
    const QRect target = screen.windowOf(w.form).placeOnScreen(marked);
    EXPECT_EQ(marked.backColor, (Color{255, 0, 0}));
    if (column == 6) Screen::shoot("tutorial");
    ASSERT_TRUE(waitFor([&] { return !w.state.demo.busy; }));
    EXPECT_TRUE(target.contains(QCursor::pos()))
        << QCursor::pos().x() << ", " << QCursor::pos().y();
  }
}

}  // namespace
}  // namespace mevracard
