// The demonstration in the real window: the system's own pointer, and a whole game by NEXT alone.
#include <QScreen>

#include <gtest/gtest.h>

#include "game/rules.h"
#include "screen.h"

namespace mevracard {
namespace {

void startTutorial(Screen& screen) {
  screen.start();
  screen.key("alt+p");
  ASSERT_TRUE(screen.waitFor([&] { return screen.messages.size() == 2; }));
  screen.settle(200);
  screen.shoot("tutorial-start");
}

struct Case {
  int column;
  const char* settings;
};

// The pointer must end on the marked number wherever the card stands and at every size.
TEST(Demonstration, EndsOnTheMarkedNumber) {
  for (const Case& c : {Case{0, "1/1/99\r\n"}, Case{6, "1/1/99\r\n"}, Case{13, "1/1/99\r\n"},
                        Case{0, "1/1/70\r\n"}, Case{6, "1/1/70\r\n"}, Case{13, "1/1/70\r\n"}}) {
    SCOPED_TRACE(c.column);
    Screen screen(3, c.settings);
    startTutorial(screen);
    MainWindow& w = screen.window();
    GameState& s = w.state;
    w.jam.disarm();
    // Only the card in this column fits: its lower number, at the Right/Top end.
    for (std::size_t i = 0; i < 14; ++i) s.a[i] = s.b[i] = 6;
    const auto card = static_cast<std::size_t>(c.column);
    s.b[card] = 0;
    s.held[card] = 1;
    s.kotak = {0, 0};
    screen.click(w.cmdHow);
    ASSERT_TRUE(screen.waitFor([&] { return s.demoBusy == 1; }));
    screen.settle(50);
    const QWidget& label = screen.widget(w.b[card]);
    const QRect target(label.mapToGlobal(QPoint(0, 0)), label.size());
    EXPECT_EQ(w.b[card].backColor, (Color{255, 0, 0}));
    if (c.column == 6) screen.shoot("demonstration");
    ASSERT_TRUE(screen.waitFor([&] { return s.demoBusy == 0; }, 15000));
    const QPoint pointer = Screen::pointer();
    EXPECT_TRUE(target.contains(pointer)) << pointer.x() << ", " << pointer.y();
  }
}

// Stop must work by keyboard, and nothing of a stopped glide may reach the normal game.
TEST(Demonstration, StopsInMidGlide) {
  Screen screen(3);
  startTutorial(screen);
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return w.state.tutorialActive == 1 || !w.jam.enabled; }));
  screen.click(w.cmdHow);
  ASSERT_TRUE(screen.waitFor([&] { return w.state.demoBusy == 1; }));
  screen.settle(150);
  screen.key("Tab");
  screen.settle(50);
  screen.key("space");
  ASSERT_TRUE(screen.waitFor([&] { return !w.cmdCL.visible; }));
  screen.settle(1500);
  EXPECT_EQ(w.state.demoBusy + w.state.demoMove + w.state.tutorialDeal, 0);
}

}  // namespace
}  // namespace mevracard
