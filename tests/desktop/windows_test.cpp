// Menus, the other windows and the table size, as they stand on the screen.
#include <QApplication>
#include <QPixmap>
#include <QScreen>
#include <QScrollBar>
#include <csignal>

#include <QtTest/QTest>
#include <gtest/gtest.h>

#include "play/passing.h"
#include "screen.h"
#include "store/statistics.h"
#include "texts/tip_text.h"

namespace mevracard {
namespace {

using Keys = std::vector<const char*>;

/// Each key but the last one opens the menu that the next one goes to.
void chooseFromMenu(Screen& screen, const Keys& keys) {
  // A window that has just been closed gives the keyboard back in its own time.
  ASSERT_TRUE(screen.waitFor([&] { return screen.hasKeyboard(screen.window().form); }));
  for (const char* const& key : keys) {
    if (&key == &keys.back()) return screen.key(key);
    const QWidget* before = QApplication::activePopupWidget();
    ASSERT_TRUE(screen.keyUntil(key, [&] { return QApplication::activePopupWidget() != before; }));
  }
}

void openMenu(Screen& screen, const char* key) {
  ASSERT_TRUE(screen.waitFor([&] { return screen.hasKeyboard(screen.window().form); }));
  ASSERT_TRUE(screen.keyUntil(key, [] { return QApplication::activePopupWidget() != nullptr; }));
}

// Access keys and check marks; a level deals anew without the abort message.
TEST(Menus, AnswerAccessKeys) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  chooseFromMenu(screen, {"alt+f", "c", "2"});
  ASSERT_TRUE(
      screen.waitFor([&] { return w.menu.computerLevel2.checked && screen.messages.size() == 2; }));
  EXPECT_FALSE(w.menu.computerLevel1.checked);
  chooseFromMenu(screen, {"alt+f", "s"});
  ASSERT_TRUE(screen.waitFor([&] { return screen.hasKeyboard(w.statistics.form); }));
  Screen::shoot("statistics");
  EXPECT_FALSE(w.form.enabled);
  screen.key("Return");
  ASSERT_TRUE(screen.waitFor([&] { return w.form.enabled; }));
  chooseFromMenu(screen, {"alt+h", "a"});
  ASSERT_TRUE(screen.waitFor([&] { return screen.hasKeyboard(w.about.form); }));
  Screen::shoot("about");
  screen.key("alt+F4");
  ASSERT_TRUE(screen.waitFor([&] { return !w.about.form.visible; }));
  chooseFromMenu(screen, {"alt+f", "n"});
  ASSERT_TRUE(screen.waitFor([&] { return screen.messages.size() == 4; }));
  EXPECT_EQ(screen.messages[2], "Aborting makes you lose this game");
}

// Esc leaves every window and the panel; on the scroll bar Left is smaller and Right larger.
TEST(Keys, LeaveWindowsAndSizeTheTable) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return !w.timer.enabled; }));
  const auto leave = [&](const Keys& way, const bool& open, const Form& form) {
    chooseFromMenu(screen, way);
    ASSERT_TRUE(screen.waitFor([&] { return open && screen.hasKeyboard(form); }));
    screen.key("Escape");
    EXPECT_TRUE(screen.waitFor([&] { return !open; }));
  };
  leave({"alt+h", "a"}, w.about.form.visible, w.about.form);
  leave({"alt+h", "t"}, w.about.form.visible, w.about.form);
  leave({"alt+f", "s"}, w.statistics.form.visible, w.statistics.form);
  EXPECT_TRUE(w.form.enabled);
  leave({"alt+o"}, w.state.sizePanelOpen, w.form);
  chooseFromMenu(screen, {"alt+o"});
  ASSERT_TRUE(screen.waitFor([&] { return w.state.sizePanelOpen; }));
  const int before = w.sizePanel.bar.value;
  screen.click(w.sizePanel.bar);
  ASSERT_TRUE(screen.waitFor([&] {
    return w.form.focus == &w.sizePanel.bar && w.sizePanel.bar.value != before &&
           QApplication::mouseButtons() == Qt::NoButton;
  }));
  const int clicked = w.sizePanel.bar.value;
  screen.key("Left");
  EXPECT_TRUE(screen.waitFor([&] { return w.sizePanel.bar.value == clicked - 1; }));
  screen.key("Right");
  EXPECT_TRUE(screen.waitFor([&] { return w.sizePanel.bar.value == clicked; }));
}

/// Whether one control is painted in front of another.
bool isBefore(Screen& screen, const Control& front, const Control& back) {
  const auto& canvas = screen.desktop().windows().front()->canvas();
  const auto rank = [&](const Control& control) {
    const auto& picture = canvas.picture();
    return std::find_if(picture.begin(), picture.end(),
                        [&](const Item& item) { return item.control == &control; });
  };
  return rank(back) < rank(front);
}

// In a small window the status line must be read before the panel.
TEST(SmallWindow, ShowsTheWholeTableAndTheStatusInFront) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return !w.timer.enabled; }));
  QWidget& window = screen.mainWidget();
  window.showNormal();
  window.resize(window.minimumSize());
  ASSERT_TRUE(screen.waitFor([&] { return window.size() == window.minimumSize(); }));
  chooseFromMenu(screen, {"alt+o"});
  ASSERT_TRUE(screen.waitFor([&] { return w.state.sizePanelOpen; }));
  EXPECT_TRUE(isBefore(screen, w.status, w.sizePanel.ground));
  Screen::shoot("small-window");
  for (const Box* box : std::initializer_list<Box*>{&w.card(0).frame, &w.card(13).frame,
                                                    &w.table.cardsLeft[Side::Computer].heading,
                                                    &w.table.passes[Side::Player].heading}) {
    EXPECT_TRUE(window.geometry().contains(screen.place(*box)));
  }
}

// What a choice means must be read without scrolling, beside the buttons that it speaks of.
TEST(Tips, FitTheirWindow) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  screen.state().tipText = tipHeading() + sameNumberTip(3, 5);
  chooseFromMenu(screen, {"alt+h", "t"});
  ASSERT_TRUE(screen.waitFor([&] { return screen.hasKeyboard(w.about.form); }));
  Screen::shoot("tips");
  for (const auto* bar : screen.widget(w.about.tip).findChildren<QScrollBar*>()) {
    EXPECT_FALSE(bar->isVisible());
  }
  EXPECT_GE(screen.widget(w.about.tip).font().pixelSize(), 13);
}

// An open menu must not keep the keyboard from what the game opens over it.
TEST(Menus, GiveWayToWindowsAndBoxes) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return !w.timer.enabled; }));
  openMenu(screen, "alt+f");
  announcePlayersPass(w);
  w.present();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  ASSERT_TRUE(screen.waitFor(
      [&] { return screen.hasKeyboard(w.about.form) && screen.widget(w.about.ok).hasFocus(); }));
  screen.key("Return");
  ASSERT_TRUE(screen.waitFor([&] { return !w.about.form.visible; }));
  openMenu(screen, "alt+h");
  ASSERT_EQ(screen.messages.size(), 1U);
  w.say("over a menu");
  EXPECT_EQ(screen.messages.back(), "over a menu");
}

/// Sends what the toolkit sends when the session is over.
void endSession() {
  QEvent over(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &over);
}

/// The toolkit opens no box any more after the end of a program, until its loop has run anew.
void beginAnew() {
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  QApplication::exec();
}

// The end of the session or of the system finds a box, the tips or a menu open: the game is lost
// once, nothing is asked, and the program ends.
TEST(SystemEnd, CountsARunningGameOnceWhateverIsOpen) {
  struct Way {
    Keys keys;
    std::function<bool(Screen&)> isOpen;
  };
  const auto box = [](Screen&) { return QApplication::activeModalWidget() != nullptr; };
  bool bySignal = false;
  for (const Way& way :
       {Way{{}, [](Screen&) { return true; }},
        Way{{"alt+f"}, [](Screen&) { return QApplication::activePopupWidget() != nullptr; }},
        Way{{"alt+f", "s"}, [](Screen& s) { return s.window().statistics.form.visible; }},
        Way{{"alt+f", "n"}, box}, Way{{"alt+F4"}, box}}) {
    Screen screen;
    screen.start();
    MainWindow& w = screen.window();
    ASSERT_TRUE(screen.waitFor([&] { return !w.timer.enabled; }));
    screen.answersBoxes = false;
    const std::string before = w.desktop.readFile(statisticsFile);
    chooseFromMenu(screen, way.keys);
    QTimer end;  // a box keeps the test waiting
    QObject::connect(&end, &QTimer::timeout, [&] {
      if (!way.isOpen(screen)) return;
      end.stop();
      bySignal ? (void)std::raise(SIGHUP) : endSession();
    });
    end.start(10);
    ASSERT_TRUE(screen.waitFor([&] { return !screen.mainWidget().isVisible(); }));
    EXPECT_EQ(w.desktop.readFile(statisticsFile), withResult(before, GameResult::Lost));
    EXPECT_EQ(screen.messages.size(), 1U);
    beginAnew();
    bySignal = !bySignal;
  }
}

QImage pictureOfTable(Screen& screen) {
  EXPECT_TRUE(screen.waitFor([&] { return screen.isAtRest(); }));
  return screen.mainWidget().grab().toImage();
}

// Step by step down to 70 and back must end on the picture of a fresh start.
TEST(ScreenSize, ComesBackToTheSamePicture) {
  Screen screen;
  screen.start();
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return !w.timer.enabled; }));
  screen.tool({"mousemove", "5", "5"});
  const QImage fresh = pictureOfTable(screen);
  chooseFromMenu(screen, {"alt+o"});
  ASSERT_TRUE(screen.waitFor([&] { return w.sizePanel.bar.visible; }));
  Screen::shoot("panel");
  auto& bar = dynamic_cast<QScrollBar&>(screen.widget(w.sizePanel.bar));
  for (int round = 0; round < 20; ++round) {
    for (int value = 98; value >= 70; --value)
      bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
    ASSERT_EQ(w.sizePanel.bar.value, 70);
    if (round == 0) Screen::shoot("smallest");
    for (int value = 71; value <= 99; ++value)
      bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    ASSERT_EQ(w.sizePanel.bar.value, 99);
  }
  screen.click(w.sizePanel.ok);
  ASSERT_TRUE(screen.waitFor([&] { return !w.sizePanel.bar.visible; }));
  screen.tool({"mousemove", "5", "5"});
  const QImage after = pictureOfTable(screen);
  int different = 0;
  for (int y = 0; y < fresh.height(); ++y) {
    for (int x = 0; x < fresh.width(); ++x) different += fresh.pixel(x, y) != after.pixel(x, y);
  }
  EXPECT_LT(different, fresh.width() * fresh.height() / 1000);
}

}  // namespace
}  // namespace mevracard
