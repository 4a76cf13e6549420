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
      std::find_if(hand.begin(), hand.end(), [&](int slot) { return fits(w.state, slot); });
  ASSERT_NE(fitting, hand.end());
  const Frame& frame = w.card(*fitting).frame;
  screen.doubleClick(frame);
  ASSERT_TRUE(screen.waitFor([&] { return !w.state.card(*fitting).held; }));
  screen.key("p");  // in mid-glide
  ASSERT_TRUE(screen.waitFor([&] { return w.state.selectedCard != noSelection; }, 500));
  screen.settle(300);
  const QWidget& card = screen.widget(frame);
  EXPECT_NEAR(card.x(), frame.left / 15, 1);
  EXPECT_NEAR(card.y(), frame.top / 15, 1);
}

}  // namespace
}  // namespace mevracard
