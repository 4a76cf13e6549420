// A card on its way to the chain, through the X server's mouse and keyboard.
#include <gtest/gtest.h>

#include "game/rules.h"
#include "screen.h"

namespace mevracard {
namespace {

// A card laid by a click must stand exactly in its place, and a key during its glide counts.
TEST(Glide, EndsInPlaceAndEatsNoKey) {
  Screen screen(3);
  screen.start();
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return !w.timer.enabled; }));
  const auto hand = handOf(Side::Player);
  const auto fitting =
      std::find_if(hand.begin(), hand.end(), [&](int slot) { return fits(w.game, slot); });
  ASSERT_NE(fitting, hand.end());
  const Frame& frame = w.card(*fitting).frame;
  screen.doubleClick(frame);
  ASSERT_TRUE(screen.waitFor([&] { return !w.game.card(*fitting).held; }));
  screen.key("p");  // in mid-glide
  ASSERT_TRUE(screen.waitFor([&] { return w.state.selectedCard != noSelection; }));
  ASSERT_TRUE(screen.waitFor([&] { return screen.isAtRest(); }));
  // As far from another control as the design says: the window has room for the table's own size.
  const Box& box = w.table.boxes[1];
  const QPoint way =
      screen.painted(frame).value_or(QRect()).topLeft() - screen.place(box).topLeft();
  EXPECT_NEAR(way.x(), (frame.left - box.left) / 15, 1);
  EXPECT_NEAR(way.y(), (frame.top - box.top) / 15, 1);
}

}  // namespace
}  // namespace mevracard
