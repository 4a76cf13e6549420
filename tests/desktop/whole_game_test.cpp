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
    for (; acts_ < 200 && screen_.state().theend == 0; ++acts_) act();
    ASSERT_EQ(screen_.state().theend, 1);
    screen_.shoot("end");
    for (std::size_t i = 1; i < 6; ++i) {
      EXPECT_TRUE(screen_.widget(screen_.window().akhir[i]).isVisible());
    }
    EXPECT_FALSE(screen_.window().tanda.visible);
  }

 private:
  [[nodiscard]] bool byMouse() const { return acts_ % 2 == 0; }

  void act() {
    MainWindow& w = screen_.window();
    if (w.authormevra.ctrcom.visible) {
      screen_.shoot("pass");
      byMouse() ? screen_.click(w.authormevra.ctrcom) : screen_.key("Return");
      ASSERT_TRUE(screen_.waitFor([&] { return !w.authormevra.ctrcom.visible; }));
    } else if (w.canc.visible) {
      screen_.shoot("choice");
      byMouse() ? screen_.click(w.kiri) : screen_.key(std::to_string(w.state.kotak[1]));
      ASSERT_TRUE(screen_.waitFor([&] { return !w.canc.visible; }));
    } else if (w.jam.enabled) {
      ASSERT_TRUE(screen_.waitFor([&] { return !w.jam.enabled; }));
    } else {
      layAny();
    }
  }

  void layAny() {
    GameState& s = screen_.state();
    const auto held = std::find_if(s.held.begin(), s.held.begin() + handSize, [&](int& flag) {
      return flag == 1 && matchesAny(s, static_cast<int>(&flag - s.held.data()));
    });
    const auto card = static_cast<int>(held - s.held.begin());
    ASSERT_LT(card, handSize) << "the player is asked to move and cannot";
    byMouse() ? screen_.doubleClick(screen_.window().k[static_cast<std::size_t>(card)])
              : layByKeys(card);
    ASSERT_TRUE(screen_.waitFor([&] { return *held == 0 || screen_.window().canc.visible; }))
        << "card " << card << " was not laid";
  }

  void layByKeys(int card) {
    MainWindow& w = screen_.window();
    for (int presses = 0; presses < 30 && w.state.selectedCard != card; ++presses) {
      const int before = w.state.selectedCard;
      screen_.key("p");
      ASSERT_TRUE(screen_.waitFor([&] { return w.state.selectedCard != before; }));
      if (w.canc.visible) return;
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
  ASSERT_TRUE(screen.waitFor([&] { return screen.state().theend == 0; }));
  ASSERT_TRUE(screen.waitFor([&] { return screen.messages.size() == boxes + 1; }));
  screen.settle(100);
  for (const auto& label : screen.window().akhir) EXPECT_FALSE(label.visible);
  EXPECT_TRUE(screen.window().tanda.visible);
}

// A card laid by a click must stand exactly in its place, and a click during its glide counts.
TEST(WholeGame, GlidesEndInPlaceAndEatNoClick) {
  Screen screen(3);
  screen.start();
  MainWindow& w = screen.window();
  ASSERT_TRUE(screen.waitFor([&] { return !w.jam.enabled; }));
  std::vector<std::size_t> fitting;
  for (std::size_t i = 0; i < 14; ++i) {
    if (w.state.held[i] == 1 && matchesAny(w.state, static_cast<int>(i))) fitting.push_back(i);
  }
  ASSERT_FALSE(fitting.empty());
  screen.doubleClick(w.k[fitting[0]]);
  ASSERT_TRUE(screen.waitFor([&] { return w.state.held[fitting[0]] == 0; }));
  screen.key("p");  // in mid-glide
  ASSERT_TRUE(screen.waitFor([&] { return w.state.selectedCard != noSelection; }, 500));
  screen.settle(300);
  const QWidget& card = screen.widget(w.k[fitting[0]]);
  EXPECT_NEAR(card.x(), w.k[fitting[0]].left / 15, 1);
  EXPECT_NEAR(card.y(), w.k[fitting[0]].top / 15, 1);
}

}  // namespace
}  // namespace mevracard
