#include "play/placement.h"

#include <cmath>
#include <utility>

#include "game/rules.h"
#include "play/choice.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

/// Turns the card so that its matching number touches the chain, and opens the other number.
void turn(GameState& s, int slot, End end, bool upperTouches) {
  Card& card = s.card(slot);
  int& outward = upperTouches ? card.lower : card.upper;
  int& touching = upperTouches ? card.upper : card.lower;
  int& open = s.openNumber[end];
  if (outward == open) std::swap(outward, touching);
  open = outward;
}

/// On the table, no longer in a hand.
void putDown(GameState& s, int slot, End end, const Laying& laying) {
  turn(s, slot, end, laying.upperTouches);
  s.card(slot).held = false;
  s.playerAimsLeftBottom = false;
  s.layPosition = laying.position;
  s.layColumn = laying.column;
}

/// Marks go: those of the card and of the one that it joins.
void unmark(MainWindow& w, int slot, std::optional<int> joined) {
  w.card(slot).paintNumbers(handColour);
  if (joined) w.card(*joined).paintNumbers(handColour);
}

void layAt(MainWindow& w, int slot, End end) {
  GameState& s = w.state;
  Frame& frame = w.card(slot).frame;
  const int n = ++s.laidAt[end];
  const Laying laying = layingOf(end, n);
  if (laying.inFront) {
    w.form.bringToFront(frame);
  } else {
    w.form.sendToBack(frame);
  }
  unmark(w, slot, s.endCard[end]);
  if (const auto move = markerMoveOf(end, n)) {
    putAt(w.table.markers[move->marker], move->place, w.scaleFactor());
  }
  putDown(s, slot, end, laying);
  glideCard(w);
  putAt(frame, chainPlace(end, laying.position, laying.column), w.scaleFactor());
  s.endCard[end] = slot;
}

}  // namespace

void putAt(Box& box, GridPoint at, double scale) {
  box.left = static_cast<float>(at.left * scale);
  box.top = static_cast<float>(at.top * scale);
}

bool layCard(MainWindow& w, int card) {
  GameState& s = w.state;
  s.playCard = card;
  w.timer.disarm();
  const auto end = endFor(s, card);
  s.cardWasLaid = end.has_value();
  if (!end) return false;
  // Its buttons would otherwise lay a card that the player no longer has in mind.
  closeChoice(w);
  layAt(w, card, *end);
  return true;
}

void glideCard(MainWindow& w) {
  const GameState& s = w.state;
  // QUIRK-06: no glide once the player holds no fitting card. One would expect every card to glide;
  // the player sees this one stand in its place at once. Meant.
  if (mustPass(s, Side::Player)) return;

  Frame& frame = w.card(s.playCard).frame;
  // QUIRK-05: the target is the Right/Top side for both ends. One would expect the card's own side;
  // the player sees a Left/Bottom card fly to the mirror column and jump across. Meant.
  const GridPoint target = chainPlace(End::RightTop, s.layPosition, s.layColumn);
  const double scale = w.scaleFactor();
  const double left0 = frame.left;
  const double top0 = frame.top;
  const double distance = target.left * scale - left0;
  const double step = std::floor(distance / 5);
  frame.track.clear();
  if (step == 0) return;
  const double slope = (target.top * scale - top0) / distance;
  frame.track.push_back({frame.left, frame.top});
  for (double x = left0; step > 0 ? x <= left0 + distance : x >= left0 + distance; x += step) {
    frame.left = static_cast<float>(x);
    frame.top = static_cast<float>(top0 + slope * (x - left0));
    frame.track.push_back({frame.left, frame.top});
  }
}

}  // namespace mevracard
