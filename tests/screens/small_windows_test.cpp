// The windows that open over the table, on screens of several sizes.
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <cmath>

#include <gtest/gtest.h>

#include "painting/table.h"
#include "texts/tip_text.h"

namespace mevracard {
namespace {

double growth() {
  const QSize screen = QGuiApplication::primaryScreen()->size();
  return std::max(1.0, std::min(screen.width() / 1600.0, screen.height() / 1200.0));
}

class SmallWindows : public testing::Test {
 protected:
  FormWindow& openTips(const std::string& text) {
    w.state.tipText = text;
    table.choose(w.menu.tips);
    (void)table.shown(w.about.form);
    return table.windowOf(w.about.form);
  }
  static QTextEdit& textOf(const FormWindow& window) { return *window.findChild<QTextEdit*>(); }
  [[nodiscard]] bool hides(const FormWindow& window, const Box& box) const {
    return window.frameGeometry().intersects(table.windowOf(w.form).placeOnScreen(box));
  }
  static bool isOnScreen(const FormWindow& window) {
    return window.screen()->availableGeometry().contains(window.frameGeometry());
  }

  Table table;
  MainWindow& w = table.w;
};

// Every tip of one turn is read without scrolling, all in one size of type; where the tips of many
// turns are too long for the screen, they open at the first line of the last paragraph.
TEST_F(SmallWindows, ShowTheTipsWithoutScrolling) {
  for (const std::string& tip :
       {openingTip() + generalTip(3, 5), sameNumberTip(3, 5), replayTip() + generalTip(3, 5)}) {
    const FormWindow& window = openTips(tipHeading() + tip);
    EXPECT_EQ(textOf(window).verticalScrollBar()->maximum(), 0) << tip;
    EXPECT_EQ(textOf(window).font().pixelSize(), std::ceil(16 * growth() - 0.25));
    EXPECT_TRUE(isOnScreen(window));
  }
  std::string turns = tipHeading();
  for (int turn = 0; turn < 40; ++turn) turns += generalTip(turn % 7, 0);
  const FormWindow& window = openTips(turns);
  EXPECT_EQ(textOf(window).cursorForPosition({4, 4}).block(),
            textOf(window).document()->lastBlock());
  EXPECT_EQ(textOf(window).cursorForPosition({4, 4}).positionInBlock(), 0);
  EXPECT_TRUE(isOnScreen(window));
  EXPECT_EQ(w.about.form.height, 3540);
}

// Tips hide nothing of what they speak of, and make way when the chain grows under them; but where
// the player has put them they stay.
TEST_F(SmallWindows, KeepClearOfWhatTheTipsSpeakOf) {
  w.choice.show(true);
  FormWindow& window = openTips(tipHeading() + sameNumberTip(3, 5));
  for (const int slot : handOf(Side::Player)) {
    EXPECT_FALSE(w.game.card(slot).held && hides(window, w.card(slot).frame)) << slot;
  }
  for (const Box* box :
       std::initializer_list<Box*>{&w.choice.leftBottom, &w.choice.rightTop, &w.choice.cancel}) {
    EXPECT_FALSE(hides(window, *box));
    EXPECT_GE(table.windowOf(w.form).placeOnScreen(*box).height(), 16);  // for a caption to be read
  }
  const bool smallest = window.screen()->size() == QSize(640, 480);  // which has no room beside
  EXPECT_EQ(hides(window, w.status), smallest);
  w.choice.show(false);
  Frame& end = w.card(20).frame;
  w.game.card(20).held = false;
  w.game.chain.endCard[End::LeftBottom] = 20;
  const auto layUnderTips = [&] {
    end.left = end.top = 0;
    const QPoint way =
        window.geometry().center() - table.windowOf(w.form).placeOnScreen(end).center();
    const double pixels = table.windowOf(w.form).placeOnScreen(end).width() / double(end.width);
    end.left = static_cast<float>(way.x() / pixels);
    end.top = static_cast<float>(way.y() / pixels);
    EXPECT_TRUE(hides(window, end));
    w.present();
  };
  layUnderTips();
  EXPECT_EQ(hides(window, end), smallest);
  window.move(window.pos() + QPoint(60, 60));
  layUnderTips();
  EXPECT_TRUE(hides(window, end));
  w.about.form.placed = true;  // on the table, if there is no room above or below it
  w.present();
  EXPECT_EQ(hides(window, w.table.whole), window.screen()->size() != QSize(1080, 1920));
}

// On a large screen panels and windows keep their share of it, with all that the mouse meets.
TEST_F(SmallWindows, GrowWithTheScreen) {
  table.choose(w.menu.howToPlay);
  table.choose(w.menu.statistics);
  (void)table.shown(w.form);
  const FormWindow& main = table.windowOf(w.form);
  const FormWindow& statistics = table.windowOf(w.statistics.form);
  EXPECT_NEAR(statistics.width(), 267 * growth(), 1);
  const QRect clear = statistics.placeOnScreen(w.statistics.clear);
  EXPECT_NEAR(clear.width(), 73 * growth(), 1);
  EXPECT_TRUE(statistics.geometry().contains(clear));
  const QRect next = main.placeOnScreen(w.tutorial.next);
  EXPECT_NEAR(next.width(), 65 * growth(), 1);
  const QPoint middle = main.canvas().mapFromGlobal(next.center());
  EXPECT_EQ(main.canvas().childAt(middle),
            &const_cast<Canvas&>(main.canvas()).keyboardOf(&w.tutorial.next));
  EXPECT_GE(statistics.findChild<QPushButton*>()->height(), 30 * growth());
}

}  // namespace
}  // namespace mevracard
