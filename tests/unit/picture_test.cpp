// What a window shows, in dots, and what of it has to be painted anew.
#include "platform/picture.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <random>
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
    return Position{frame.left, frame.top};
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

/// All windows of a program, with everything in them that is painted.
std::vector<const Form*> showEverything(MainWindow& w) {
  for (Form* form : {&w.form, &w.about.form, &w.statistics.form}) {
    for (Control* control : form->controls) control->visible = !isWidget(*control);
  }
  return {&w.form, &w.about.form, &w.statistics.form};
}

bool isFree(const Picture& picture, const Item& label) {
  return std::none_of(&label + 1, picture.data() + picture.size(), [&](const Item& front) {
    return front.bounds().meets(label.place.joined(label.room));
  });
}

/// Where a text begins, ends or has its middle, as far as its alignment says, counts from there.
int textAt(Alignment alignment, const Dots& dots) {
  if (alignment == Alignment::Centre) return (dots.left + dots.right()) / 2;
  return alignment == Alignment::Left ? dots.left : dots.right();
}

// Everything lies where its data say and inside what is painted anew when it changes, a part inside
// its frame, and a text stands where its label does.
TEST(Picture, HasEverythingOfEveryWindowInItsPlace) {
  HeadlessDesktop desktop;
  desktop.world.files = {{"wdx.sys", "1/1/99\r\n"}, {"sys32rtn.dat", "547153507498\r\n"}};
  Program program(desktop);
  program.start();
  int freeTexts = 0;
  for (const Form* form : showEverything(program.window())) {
    for (const View table : {View::plain(1), View{0.1, 100, 200}, View{0.03, 31, -7}}) {
      const Picture picture =
          pictureOf(*form, {table, View::plain(2), {0, 0, 3000, 2000}}, [](const Frame& frame) {
            return Position{frame.left, frame.top};
          });
      Dots frame;
      for (const Item& item : picture) {
        const Control& control = *item.control;
        const bool isPart = control.parent != nullptr;
        SCOPED_TRACE(control.fullName());
        EXPECT_TRUE(item.bounds().holds(item.place));
        if (control.kind == ControlKind::Frame) frame = item.place;
        EXPECT_TRUE(!isPart || frame.grown(1).holds(item.place));
        if (control.kind == ControlKind::Line) continue;
        const auto& box = static_cast<const Box&>(control);
        const View view = control.pinned ? View::plain(2) : table;
        EXPECT_NEAR(item.place.left,
                    (isPart ? frame.left : view.left) + box.left * view.dotsPerTwip, 0.6);
        EXPECT_NEAR(item.place.top, (isPart ? frame.top : view.top) + box.top * view.dotsPerTwip,
                    0.6);
        const auto* label = std::get_if<Label>(&item.look);
        if (label == nullptr || isPart || item.room.empty()) continue;
        EXPECT_TRUE(item.bounds().holds(item.room));
        if (!isFree(picture, item)) continue;
        ++freeTexts;
        EXPECT_NEAR(textAt(label->alignment, item.room), textAt(label->alignment, item.place),
                    view.border(4));
      }
    }
  }
  EXPECT_GT(freeTexts, 20);
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
        return Position{frame.left, frame.top};
      });
      EXPECT_EQ(picture.back().control, &w.status);
      EXPECT_EQ(picture.back().room, picture.back().place);
    }
  }
}

/// What is painted on a dot, back to front.
Picture on(const Picture& picture, int x, int y) {
  Picture stack;
  std::copy_if(picture.begin(), picture.end(), std::back_inserter(stack),
               [&](const Item& item) { return item.bounds().holds(x, y); });
  return stack;
}

// Whatever changes, no dot may keep what was painted there before.
TEST(Picture, TellsEveryDotThatDiffers) {
  std::mt19937 random(7);
  const auto below = [&](unsigned end) { return static_cast<float>(random() % end); };
  std::array<Label, 3> labels;
  std::array<Shape, 3> shapes;
  std::array<Line, 2> lines;
  Frame card;
  Form form;
  form.controls = {&labels[0], &labels[1], &shapes[0], &shapes[1],
                   &shapes[2], &lines[0],  &lines[1],  &card};
  card.children = {&labels[2]};
  labels[2].parent = &card;
  put(labels[2], 1, 1, 3, 3);
  Picture before;
  for (int round = 0; round < 300; ++round) {
    switch (random() % 5) {
      case 0:
        put(labels[random() % 2], below(side), below(side), below(9), below(9));
        break;
      case 1:
        put(shapes[random() % 3], below(side), below(side), below(9), below(9));
        break;
      case 2:
        lines[0].x2 = 15 * below(side);
        lines[1].y1 = lines[1].y2 = 15 * below(side);
        break;
      case 3:
        put(card, below(side), below(side), 5 + below(4), 6);
        break;
      default:
        std::swap(form.controls[random() % form.controls.size()], form.controls[0]);
        form.controls[1]->visible = random() % 2 == 0;
    }
    const Picture after = show(form);
    const std::vector<Dots> changed = difference(before, after);
    for (int dot = 0; dot < side * side; ++dot) {
      const int x = dot % side;
      const int y = dot / side;
      if (on(before, x, y) == on(after, x, y)) continue;
      EXPECT_TRUE(std::any_of(changed.begin(), changed.end(),
                              [&](const Dots& dots) { return dots.holds(x, y); }))
          << round << ": " << x << ", " << y;
    }
    before = after;
  }
}

}  // namespace
}  // namespace mevracard
