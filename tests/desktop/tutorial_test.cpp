// The demonstration in the real window: where the system's own pointer ends.
#include <QScreen>

#include <gtest/gtest.h>

#include "game/rules.h"
#include "screen.h"

namespace mevracard {
namespace {

void startTutorial(Screen& screen) {
  screen.start();
  ASSERT_TRUE(screen.keyUntil("alt+p", [&] { return screen.messages.size() >= 2; }));
  Screen::shoot("tutorial-start");
}

struct Case {
  int column;
  const char* settings;
};

// The pointer must end on the marked number wherever the card stands and at every size.
TEST(Demonstration, EndsOnTheMarkedNumber) {
  for (const Case& c : {Case{0, "1/1/99"}, Case{6, "1/1/99"}, Case{13, "1/1/99"}, Case{0, "1/1/70"},
                        Case{6, "1/1/70"}, Case{13, "1/1/70"}}) {
    SCOPED_TRACE(c.column);
    Screen screen(3, c.settings);
    startTutorial(screen);
    MainWindow& w = screen.window();
    Game& game = w.game;
    TableState& s = w.state;
    w.timer.disarm();
    // Only the card in this column fits: its lower number, at the Right/Top end.
    for (const int slot : handOf(Side::Player)) game.card(slot) = {6, 6, game.card(slot).held};
    game.card(c.column) = {6, 0, true};
    game.chain.openNumber = {};
    screen.click(w.tutorial.next);
    ASSERT_TRUE(screen.waitFor([&] { return s.demo.busy; }));
    const Label& marked = w.card(c.column).lower;
    const QRect target = screen.place(marked);
    EXPECT_EQ(marked.backColor, (Color{255, 0, 0}));
    if (c.column == 6) Screen::shoot("demonstration");
    ASSERT_TRUE(screen.waitFor([&] { return !s.demo.busy; }));
    const QPoint pointer = Screen::pointer();
    EXPECT_TRUE(target.contains(pointer)) << pointer.x() << ", " << pointer.y();
  }
}

}  // namespace
}  // namespace mevracard
