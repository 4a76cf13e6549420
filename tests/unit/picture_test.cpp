// What a window shows, in dots.
#include "platform/picture.h"

#include <tuple>

#include <gtest/gtest.h>

#include "app/program.h"
#include "platform/headless/headless_desktop.h"

namespace mevracard {
namespace {

constexpr int side = 24;  // dots of a window, of 15 twips each

Picture show(const Form& form) {
  const View plain = View::plain(1);
  return pictureOf(form, {plain, plain, {0, 0, side, side}}, [](const Frame& frame) {
    return WindowPoint{frame.left, frame.top};
  });
}

void put(Box& box, float left, float top, float width, float height) {
  box.left = 15 * left;
  box.top = 15 * top;
  box.width = 15 * width;
  box.height = 15 * height;
}

// A covered number must not be painted at all: where its box is rounded otherwise than the cover's
// it would be read at the edge. A text keeps clear of what lies in front of it.
TEST(Picture, HidesWhatIsCoveredAndKeepsTextsClear) {
  Label number, text;
  Shape cover;
  Line line;
  put(number, 2, 2, 5, 5);
  put(cover, 1, 1, 7, 7);
  cover.filled = true;
  put(text, -5, 10, 25, 8);
  line.x1 = 0;
  line.x2 = 15 * side;
  line.y1 = line.y2 = 15 * 16;
  Form form;
  form.controls = {&number, &cover, &text, &line};
  const Picture picture = show(form);
  ASSERT_EQ(picture.size(), 3U);
  EXPECT_EQ(picture[0].control, &cover);
  EXPECT_EQ(picture[1].room, (Dots{0, 10, 18, 6}));
  EXPECT_EQ(controlAt(picture, 3, 3), nullptr);
  EXPECT_EQ(controlAt(picture, 19, 17), &text);
  EXPECT_EQ(controlAt(picture, 20, 17), nullptr);
  cover.visible = false;
  EXPECT_EQ(controlAt(show(form), 3, 3), &number);
}

// What is left of a text's room beside something is its largest piece, on whichever side.
TEST(Dots, KeepTheLargestPieceBesideOthers) {
  const Dots room{10, 20, 10, 10};
  EXPECT_EQ(room.beside({10, 22, 10, 1}), (Dots{10, 23, 10, 7}));
  EXPECT_EQ(room.beside({0, 27, 90, 1}), (Dots{10, 20, 10, 7}));
  EXPECT_EQ(room.beside({12, 0, 1, 90}), (Dots{13, 20, 7, 10}));
  EXPECT_EQ(room.beside({17, 20, 2, 10}), (Dots{10, 20, 7, 10}));
  EXPECT_EQ(room.beside({20, 20, 2, 10}), room);
  EXPECT_TRUE(room.beside({0, 0, 90, 90}).empty());
}

// In a window that is too small for panels beside the table they lie inside its border, and hide
// neither the counters nor the status line, whatever stands behind what.
TEST(Picture, KeepsPanelsOffWhatMustBeRead) {
  for (const char* settings : {"1/1/99\r\n", "1/1/70\r\n"}) {
    HeadlessDesktop desktop;
    desktop.world.files = {{"wdx.sys", settings}, {"sys32rtn.dat", "547153507498\r\n"}};
    Program program(desktop);
    program.start();
    MainWindow& w = program.window();
    w.sizePanel.show(true);
    w.status.visible = true;
    w.form.sendToBack(w.status);
    for (const auto& [width, height, ratio] : {std::tuple{640, 440, 1.0},
                                               {800, 560, 1.0},
                                               {1366, 729, 1.0},
                                               {1080, 1880, 1.0},
                                               {2048, 1450, 2.0}}) {
      SCOPED_TRACE(std::string(settings) + std::to_string(width));
      const Views views = viewsOf(w.form, {0, 0, width, height}, ratio);
      const Dots ground =
          views.placeOf(w.sizePanel.ground).joined(views.placeOf(w.sizePanel.heading));
      EXPECT_EQ(ground.width, 137 * ratio);
      EXPECT_TRUE(views.window.holds(ground));
      for (const auto& passes : {w.table.passes[Side::Computer], w.table.passes[Side::Player]}) {
        EXPECT_FALSE(ground.meets(views.placeOf(passes.heading)));
        EXPECT_FALSE(ground.meets(views.placeOf(passes.count)));
      }
      const Dots table =
          views.table.line(w.table.border[0]).joined(views.table.line(w.table.border[1]));
      EXPECT_TRUE(table.holds(ground) || !table.meets(ground));
      const Picture picture = pictureOf(w.form, views, [](const Frame& frame) {
        return WindowPoint{frame.left, frame.top};
      });
      EXPECT_EQ(picture.back().control, &w.status);
      EXPECT_EQ(picture.back().room, picture.back().place);
      EXPECT_FALSE(ground.meets(picture.back().place));
      for (const Side owner : {Side::Computer, Side::Player}) {
        const auto& [heading, count] = w.table.cardsLeft[owner];
        const Dots caption = views.placeOf(w.table.handCaptions[owner == Side::Player ? 1 : 0]);
        const Dots theirs = views.placeOf(heading).joined(views.placeOf(count));
        EXPECT_TRUE(caption.width >= 66 * ratio || !caption.meets(theirs));
      }
    }
  }
}

}  // namespace
}  // namespace mevracard
