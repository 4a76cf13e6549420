// The demonstration in the real window: where the system's own pointer ends.
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

}  // namespace
}  // namespace mevracard
