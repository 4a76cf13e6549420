// How a window's twips lie on the dots of a screen.
#include "platform/view.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

namespace mevracard {
namespace {

Shape table(float left, float top, float width, float height) {
  Shape shape;
  shape.left = left;
  shape.top = top;
  shape.width = width;
  shape.height = height;
  return shape;
}

// The table must lie whole and in the middle of every window, at its own size where there is room
// and never larger: a part that lies outside cannot be reached at all.
TEST(View, ShowsAllOfTheTableInTheMiddle) {
  struct Window {
    double width, height, ratio;
  };
  const Shape whole = table(240, 120, 14640, 10500);  // 976 x 700 pixels
  for (const Window& w : {Window{1366, 729, 1}, Window{640, 440, 1}, Window{1080, 1880, 1},
                          Window{3840, 2120, 2}, Window{1600, 900, 1.25}, Window{100, 700, 1.5}}) {
    SCOPED_TRACE(w.width);
    const View view = View::fitted(whole, w.width, w.height, w.ratio);
    const Dots box = view.box(whole);
    EXPECT_NEAR(box.left, w.width - box.left - box.width, 2);
    EXPECT_NEAR(box.top, w.height - box.top - box.height, 2);
    EXPECT_GE(box.left, -1);
    EXPECT_GE(box.top, -1);
    const bool fits = 976 * w.ratio <= w.width && 700 * w.ratio <= w.height;
    EXPECT_EQ(view.length(15) == 15 * w.ratio, fits);
    EXPECT_LE(view.dotsPerTwip, w.ratio / 15);
    const bool grows = 1.4 * 976 * w.ratio <= w.width && 1.4 * 700 * w.ratio <= w.height;
    const View small = View::fitted(whole, w.width, w.height, w.ratio, 1.4);
    EXPECT_EQ(small.dotsPerTwip == w.ratio / 15, grows);
  }
}

// Cards of one size must look alike wherever they stand, and no border may vanish.
TEST(View, KeepsSizesAlikeAndBordersSeen) {
  const View view = View::fitted(table(0, 0, 14640, 10500), 800, 560, 1.25);
  const Dots first = view.box(table(3360, 9400, 495, 1095));
  for (int i = 1; i < 14; ++i) {
    const Dots card = view.box(table(3360.0F + 600.0F * static_cast<float>(i), 9400, 495, 1095));
    EXPECT_EQ(card.width, first.width);
    EXPECT_EQ(card.height, first.height);
  }
  EXPECT_GE(view.border(0.1), 1);
}

// After absurd sizes of the table every place still counts in whole numbers.
TEST(View, BearsAbsurdSizes) {
  constexpr float endless = std::numeric_limits<float>::infinity();
  for (const float size : {0.0F, -1.0F, 1e30F, endless, endless - endless}) {
    const View view = View::fitted(table(size, size, size, size), 800, 600, 1);
    const Dots box = view.box(table(size, size, size, size));
    for (const int number : {box.left, box.top, box.width, box.height}) {
      EXPECT_LE(std::abs(number), 100000);
    }
  }
}

}  // namespace
}  // namespace mevracard
