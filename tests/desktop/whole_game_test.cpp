// Whole games in the real window, through the X server's mouse and keyboard.
#include <QRandomGenerator>
#include <algorithm>

#include <gtest/gtest.h>

#include "game/rules.h"
#include "screen.h"

namespace mevracard {
namespace {

/// Plays until the end, one act of the player's at a time; shoots what it meets on the way.
class Player {
 public:
  Player(Screen& screen, std::string name) : screen_(screen), name_(std::move(name)) {}
  virtual ~Player() = default;

  void play() {
    screen_.shoot(name_ + "-opening");
    for (int acts = 0; acts < 200 && !screen_.state().gameOver; ++acts) {
      act();
      ASSERT_EQ(brokenInvariant(screen_.state()), "");
    }
    ASSERT_TRUE(screen_.state().gameOver);
    screen_.shoot(name_ + "-end");
    MainWindow& w = screen_.window();
    for (const Label* label : w.result.labels()) {
      EXPECT_TRUE(label == &w.result.deadlock || screen_.widget(*label).isVisible());
    }
    EXPECT_FALSE(w.status.visible);
  }

 protected:
  virtual void acknowledgePass() = 0;
  virtual void choose() = 0;
  virtual void lay(int card) = 0;

  Screen& screen_;

 private:
  void act() {
    MainWindow& w = screen_.window();
    if (w.state.passAwaitsOk) {
      if (!passSeen_) screen_.shoot(name_ + "-pass");
      passSeen_ = true;
      acknowledgePass();
      ASSERT_TRUE(screen_.waitFor([&] { return !w.state.passAwaitsOk; }));
    } else if (w.state.choiceOpen) {
      if (!choiceSeen_) screen_.shoot(name_ + "-choice");
      choiceSeen_ = true;
      choose();
      ASSERT_TRUE(screen_.waitFor([&] { return !w.state.choiceOpen; }));
    } else if (w.timer.enabled) {
      ASSERT_TRUE(screen_.waitFor([&] { return !w.timer.enabled; }));
    } else {
      layAny();
    }
    if (cardsLaid(screen_.state()) == 14) screen_.shoot(name_ + "-middle");
  }

  void layAny() {
    GameState& s = screen_.state();
    for (const int slot : handOf(Side::Player)) {
      if (!s.card(slot).held || !fits(s, slot)) continue;
      lay(slot);
      ASSERT_TRUE(screen_.waitFor([&] { return !s.card(slot).held || s.choiceOpen; }))
          << "card " << slot << " was not laid";
      return;
    }
    FAIL() << "the player is asked to move and cannot";
  }

  std::string name_;
  bool passSeen_ = false, choiceSeen_ = false;
};

class MousePlayer final : public Player {
 public:
  using Player::Player;

 private:
  void acknowledgePass() override { screen_.click(screen_.window().about.ok); }
  void choose() override { screen_.click(screen_.window().choice.leftBottom); }
  void lay(int card) override { screen_.doubleClick(screen_.window().card(card).frame); }
};

class KeyPlayer final : public Player {
 public:
  using Player::Player;

 private:
  void acknowledgePass() override { screen_.key("Return"); }
  void choose() override {
    screen_.key(std::to_string(screen_.state().openNumber[End::LeftBottom]));
  }
  void lay(int card) override {
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
};

// A second game after the end must start as clean as the first.
TEST(WholeGame, WithTheMouse) {
  Screen screen(3);
  screen.start();
  MousePlayer(screen, "mouse").play();
  const auto boxes = screen.messages.size();
  screen.key("alt+f");
  screen.settle(200);
  screen.key("n");
  ASSERT_TRUE(screen.waitFor([&] { return !screen.state().gameOver; }));
  ASSERT_TRUE(screen.waitFor([&] { return screen.messages.size() == boxes + 1; }));
  screen.settle(100);
  for (const Label* label : screen.window().result.labels()) EXPECT_FALSE(label->visible);
  EXPECT_TRUE(screen.window().status.visible);
  EXPECT_EQ(brokenInvariant(screen.state()), "");
}

TEST(WholeGame, WithKeysAlone) {
  Screen screen(3);
  screen.start();
  KeyPlayer(screen, "keys").play();
}

// Clicks and keys that come faster than glides and replies must neither break the game nor be lost
// on it: afterwards it is still played to its end.
TEST(WholeGame, SurvivesAStorm) {
  Screen screen(5);
  screen.start();
  QRandomGenerator draw(7);
  const QStringList keys{"p", "Return", "space", "Escape", "0", "1", "2", "3", "4", "5", "6", "x"};
  const QRect area = screen.mainWidget().geometry();
  for (int burst = 0; burst < 60 && !screen.state().gameOver; ++burst) {
    QStringList commands;
    for (int n = 0; n < 12; ++n) {
      if (draw.bounded(2) == 0) {
        commands << "key" << keys[draw.bounded(static_cast<int>(keys.size()))];
        continue;
      }
      Frame& card = screen.window().card(draw.bounded(28)).frame;
      const QPoint at = draw.bounded(3) == 0
                            ? area.topLeft() + QPoint(draw.bounded(area.width()),
                                                      60 + draw.bounded(area.height() - 60))
                            : screen.widget(card).mapToGlobal(QPoint(15, 30));
      commands << "mousemove" << QString::number(at.x()) << QString::number(at.y()) << "click"
               << "--repeat"
               << "2"
               << "--delay"
               << "5"
               << "1";
    }
    screen.tool(commands);
    screen.settle(40);
    ASSERT_EQ(brokenInvariant(screen.state()), "");
  }
  if (!screen.state().gameOver) MousePlayer(screen, "storm").play();
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
  const QWidget& card = screen.widget(frame);
  EXPECT_NEAR(card.x(), frame.left / 15, 1);
  EXPECT_NEAR(card.y(), frame.top / 15, 1);
}

}  // namespace
}  // namespace mevracard
