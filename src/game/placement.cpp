#include "game/placement.h"

#include <cmath>
#include <utility>

#include "game/rules.h"
#include "ui/card_cover.h"
#include "ui/choice.h"

namespace mevracard {

namespace {

std::size_t slot(int number) { return static_cast<std::size_t>(number); }

/// The end that the card of `playCard` goes to, if any.
std::optional<End> chosenEnd(const GameState& s) {
  // QUIRK-07: a card that fits the Right/Top end alone is refused while Left/Bottom is asked for.
  // One would expect it at the end it fits; the player's card stays in the hand. Meant.
  const bool rightAllowed = s.leftEndChosen == 0 && s.ngisor == 0;
  if (rightAllowed && matchesEnd(s, s.playCard, End::RightTop)) return End::RightTop;
  if (matchesEnd(s, s.playCard, End::LeftBottom)) return End::LeftBottom;
  return std::nullopt;
}

/// Turns the card so that its matching number touches the chain, and opens the other number.
void turn(GameState& s, std::size_t card, End end, bool upperTouches) {
  int& outward = upperTouches ? s.b[card] : s.a[card];
  int& touching = upperTouches ? s.a[card] : s.b[card];
  int& active = s.activeNumber(end);
  if (outward == active) std::swap(outward, touching);
  active = outward;
}

void layAt(MainWindow& w, End end) {
  GameState& s = w.state;
  const auto card = slot(s.playCard);
  const int n = ++s.laidAt(end);
  const Laying laying = layingOf(end, n);
  if (laying.inFront) {
    w.form.bringToFront(w.k[card]);
  } else {
    w.form.sendToBack(w.k[card]);
  }
  paintNumbers(w, card, handColour);
  if (const auto before = s.endCard(end)) {
    w.a.at(slot(*before)).backColor = handColour;
    w.b.at(slot(*before)).backColor = handColour;
  }
  if (const auto move = markerMoveOf(end, n)) {
    putAt(w.hubung[move->marker], move->place, w.scaleFactor());
  }
  turn(s, card, end, laying.upperTouches);
  s.moveMade = 1;
  s.held[card] = 0;
  s.leftEndChosen = 0;
  s.layPosition = laying.position;
  s.layColumn = laying.column;
  moving(w);
  putAt(w.k[card], chainPlace(end, laying.position, laying.column), w.scaleFactor());
  s.endCard(end) = s.playCard;
}

}  // namespace

void putAt(Box& box, GridPoint at, double scale) {
  box.left = static_cast<float>(at.left * scale);
  box.top = static_cast<float>(at.top * scale);
}

void Cocok(MainWindow& w) {
  w.jam.disarm();
  const auto end = chosenEnd(w.state);
  if (!end) {
    w.state.moveMade = 0;
    return;
  }
  // Its buttons would otherwise lay a card that the player no longer has in mind.
  closeChoice(w);
  layAt(w, *end);
}

void moving(MainWindow& w) {
  const GameState& s = w.state;
  // QUIRK-06: no glide once the player holds no fitting card. One would expect every card to glide;
  // the player sees this one stand in its place at once. Meant.
  if (playerIsStuck(s)) return;

  Frame& frame = w.k.at(slot(s.playCard));
  // QUIRK-05: the target is the Right/Top side for both ends. One would expect the card's own side;
  // the player sees a Left/Bottom card fly to the mirror column and jump across. Meant.
  const GridPoint target = chainPlace(End::RightTop, s.layPosition, s.layColumn);
  const double scale = w.scaleFactor();
  const double left0 = frame.left;
  const double top0 = frame.top;
  const double distance = target.left * scale - left0;
  const double step = std::floor(distance / 5);
  frame.track.clear();
  if (distance == 0 || step == 0) return;
  const double slope = (target.top * scale - top0) / distance;
  frame.track.push_back({frame.left, frame.top});
  for (double x = left0; step > 0 ? x <= left0 + distance : x >= left0 + distance; x += step) {
    frame.left = static_cast<float>(x);
    frame.top = static_cast<float>(top0 + slope * (x - left0));
    frame.track.push_back({frame.left, frame.top});
  }
}

}  // namespace mevracard
