// A whole game in the real window, through the X server's mouse and keyboard.
#include <algorithm>

#include <gtest/gtest.h>

#include "game/rules.h"
#include "screen.h"

namespace mevracard {
namespace {

/// Plays until the end: a card by the mouse, the next by keys, and what is asked alike.
class Player {
 public:
  explicit Player(Screen& screen) : screen_(screen) {}

  void play() {
    for (; acts_ < 200 && !screen_.state().gameOver; ++acts_) act();
    ASSERT_TRUE(screen_.state().gameOver);
    screen_.shoot("end");
    Result& result = screen_.window().result;
    for (const Label* label : result.labels()) {
      EXPECT_TRUE(label == &result.deadlock || screen_.painted(*label));
    }
    EXPECT_FALSE(screen_.window().status.visible);
  }

 private:
  [[nodiscard]] bool byMouse() const { return acts_ % 2 == 0; }

  void act() {
    MainWindow& w = screen_.window();
    if (w.state.passAwaitsOk) {
      screen_.shoot("pass");
      byMouse() ? screen_.click(w.about.ok) : screen_.key("Return");
      ASSERT_TRUE(screen_.waitFor([&] { return !w.state.passAwaitsOk; }));
    } else if (w.state.choiceOpen) {
      screen_.shoot("choice");
      byMouse() ? screen_.click(w.choice.leftBottom)
                : screen_.key(std::to_string(w.state.openNumber[End::LeftBottom]));
      ASSERT_TRUE(screen_.waitFor([&] { return !w.state.choiceOpen; }));
    } else if (w.timer.enabled) {
      ASSERT_TRUE(screen_.waitFor([&] { return !w.timer.enabled; }));
    } else {
      layAny();
    }
  }

  void layAny() {
    GameState& s = screen_.state();
    const auto hand = handOf(Side::Player);
    const auto found = std::find_if(hand.begin(), hand.end(),
                                    [&](int slot) { return s.card(slot).held && fits(s, slot); });
    ASSERT_NE(found, hand.end()) << "the player is asked to move and cannot";
    const int card = *found;
    byMouse() ? screen_.doubleClick(screen_.window().card(card).frame) : layByKeys(card);
    ASSERT_TRUE(screen_.waitFor([&] { return !s.card(card).held || s.choiceOpen; }))
        << "card " << card << " was not laid";
  }

  void layByKeys(int card) {
    MainWindow& w = screen_.window();
    for (int presses = 0; presses < 30 && w.state.selectedCard != card; ++presses) {
      const int before = w.state.selectedCard;
      screen_.key("p");
      ASSERT_TRUE(screen_.waitFor([&] { return w.state.selectedCard != before; }));
      if (w.state.choiceOpen) return;
    }
    ASSERT_EQ(w.state.selectedCard, card);
    screen_.key(card % 2 == 0 ? "space" : "Return");
  }

  Screen& screen_;
  int acts_ = 0;
};

// A second game after the end must start as clean as the first.
TEST(WholeGame, IsPlayedToItsEnd) {
  Screen screen(3);
  screen.start();
  Player(screen).play();
  const auto boxes = screen.messages.size();
  screen.key("alt+f");
  screen.settle(200);
  screen.key("n");
  ASSERT_TRUE(screen.waitFor([&] { return !screen.state().gameOver; }));
  ASSERT_TRUE(screen.waitFor([&] { return screen.messages.size() == boxes + 1; }));
  screen.settle(100);
  for (const Label* label : screen.window().result.labels()) EXPECT_FALSE(label->visible);
  EXPECT_TRUE(screen.window().status.visible);
}

// A card laid by a click must stand exactly in its place, and a click during its glide counts.
TEST(WholeGame, GlidesEndInPlaceAndEatNoClick) {
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
  // As far from another control as the design says: the window has room for the table's own size.
  const Box& box = w.table.boxes[1];
  const QPoint way =
      screen.painted(frame).value_or(QRect()).topLeft() - screen.place(box).topLeft();
  EXPECT_NEAR(way.x(), (frame.left - box.left) / 15, 1);
  EXPECT_NEAR(way.y(), (frame.top - box.top) / 15, 1);
}

}  // namespace
}  // namespace mevracard
