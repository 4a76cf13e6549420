// What stands behind a message box, and what stands behind the cards.
#include <algorithm>

#include <gtest/gtest.h>

#include "ai/komputer.h"
#include "app/program.h"
#include "platform/headless/headless_desktop.h"

namespace mevracard {
namespace {

long cardsBehindStatus(const MainWindow& w) {
  const auto& controls = w.form.controls;
  return std::count_if(controls.begin(), std::find(controls.begin(), controls.end(), &w.tanda),
                       [](const Control* c) { return c->kind == ControlKind::Frame; });
}

// QUIRK-18: hands lie behind the first message, are hidden behind that of the next deal. The panel
// sends the status line behind the cards, a pass of the computer's brings it in front.
TEST(MainWindow, ShowsTheRightThingsBehindItsMessages) {
  std::vector<bool> hands;
  long behind = 0;
  const MainWindow* window = nullptr;
  HeadlessDesktop desktop([&](std::string_view line) {
    if (!line.starts_with("> message")) return;
    hands.push_back(window->k[0].visible);
    behind = cardsBehindStatus(*window);
  });
  desktop.world.files = {{"wdx.sys", "1/1/99\r\n"}, {"sys32rtn.dat", "547153507498\r\n"}};
  Program program(desktop);
  MainWindow& w = program.window();
  window = &w;
  program.start();
  desktop.menu(w.rg);  // tells of the abort, then of the deal
  EXPECT_EQ(hands, (std::vector{true, true, false}));

  desktop.menu(w.scr);
  EXPECT_EQ(cardsBehindStatus(w), 0);
  std::fill(w.state.held.begin() + handSize, w.state.held.end(), 0);
  w.state.held[0] = 1;
  w.state.kotak = {w.state.a[0], w.state.b[0]};
  komputer(w);
  EXPECT_EQ(behind, cardCount);
}

}  // namespace
}  // namespace mevracard
