#include "play/demonstrated_move.h"

#include <algorithm>
#include <cmath>

#include "game/grid.h"
#include "game/rules.h"
#include "play/ending.h"
#include "play/placement.h"
#include "play/status.h"
#include "texts/tip_text.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

constexpr int glideInterval = 60;
/// The pointer's way takes this long at most: its steps, of 10 pixels else, are longer on a screen
/// where that would not do.
constexpr int longestWay = 100;   // ticks
constexpr double farAway = 5000;  ///< outside the window: the pointer vanishes there

/// The window's mapping to the screen where it cannot be asked: twips to pixels of 15 twips. The
/// two divisors differ because the title and menu bars stand above the table.
double screenX(double left) { return (left + 50) * 150 / 2230; }
double screenY(double top) { return (top + 50) * 150 / 2050; }

/// The number to mark on the card at an end; none on the 0-0.
Label* markedAtEnd(MainWindow& w, End end) {
  const int n = w.game.chain.laidAt[end];
  if (n == 0) return nullptr;
  CardControls& card = w.card(w.game.chain.endCard[end].value_or(0));
  const Laying laying = layingOf(end, n);
  // QUIRK-42: in the third column, from the 22nd card of the Right/Top end and the 21st of the
  // Left/Bottom end on, the number that touches the chain is marked. One would expect the open one;
  // the player sees the wrong half of the end card turn red.
  const bool thirdColumn = laying.column == 2;
  return laying.upperTouches == thirdColumn ? &card.upper : &card.lower;
}

/// Drawn in to where it still counts in whole numbers: a script may ask for any distance.
int wholeNumber(double value) {
  constexpr double limit = 1e9;
  return static_cast<int>(std::fmin(std::fmax(value, -limit), limit));
}

/// Moves the pointer to a place given in pixels of 15 twips, rounded half to even.
void movePointer(MainWindow& w, double x, double y) {
  const auto pixel = [factor = 15.0 / w.state.twipsPerPixel](double value) {
    return wholeNumber(std::nearbyint(static_cast<float>(value * factor)));
  };
  w.desktop.movePointer(pixel(x), pixel(y));
}

/// A hand without a fitting card is aimed at whatever slot came last, which may be empty.
bool layDemonstratedCard(MainWindow& w) {
  TableState& s = w.state;
  if (w.game.card(s.demo.card).held) return layCard(w, s.demo.card, Side::Player);
  w.timer.disarm();
  s.lastOffer = {s.demo.card, false};
  return false;
}

void finishMove(MainWindow& w) {
  TableState& s = w.state;
  s.demo.start.x += s.demo.offset.x;
  s.demo.start.y += s.demo.offset.y;
  s.demo.busy = false;
  s.tutorial.untilFirstCard = false;
  const bool laid = layDemonstratedCard(w);
  announce(w, Announcement::ComputersTurn);
  const Card& card = w.game.card(s.demo.card);
  s.tipText = demonstratedTip(card.upper, card.lower);
  if (laid) afterPlayersCard(w);
}

}  // namespace

void aimPointer(MainWindow& w) {
  TableState& s = w.state;
  CardControls& card = w.card(s.demo.card);
  const auto end = firstFit(w.game, s.demo.card);
  const bool upper = !end || w.game.card(s.demo.card).upper == w.game.chain.openNumber[*end];
  Label& target = upper ? card.upper : card.lower;
  if (end) {
    target.backColor = selectionColour;
    if (Label* number = markedAtEnd(w, *end)) number->backColor = selectionColour;
  }
  const auto place = placeOnScreen(w, target);
  if (end) {
    const double top = upper ? card.frame.top : card.frame.height / 2 + card.frame.top;
    s.demo.offset.y = (place ? place->y : screenY(top)) - s.demo.start.y;
  }
  s.demo.offset.x = (place ? place->x : screenX(card.frame.left)) - s.demo.start.x;
  s.demo.tick = 0;
  w.timer.arm(glideInterval);
}

void demonstrate(MainWindow& w) {
  DemonstratedMove& demo = w.state.demo;
  const auto [dx, dy] = demo.offset;
  const auto [x, y] = demo.start;
  const int i = ++demo.tick;
  const int steps = std::min(wholeNumber(steady(std::sqrt(dx * dx + dy * dy) / 10)), longestWay);
  if (i <= steps) {
    movePointer(w, x + i * dx / steps, y + i * dy / steps);
  } else if (i < steps + 3 || i == steps + 4 || i == steps + 5) {
    movePointer(w, farAway, farAway);
  } else if (i == steps + 3 || i == steps + 6) {
    movePointer(w, x + dx, y + dy);
  } else if (i == steps + 10) {
    finishMove(w);
  }
}

std::optional<ScreenPoint> placeOnScreen(const MainWindow& w, const Box& control) {
  const auto pixel = w.desktop.centreOnScreen(control);
  if (!pixel) return std::nullopt;
  const double factor = w.state.twipsPerPixel / 15.0;
  return ScreenPoint{pixel->x * factor, pixel->y * factor};
}

}  // namespace mevracard
