#include "play/placement.h"

#include <cmath>

#include "game/moves.h"
#include "game/rules.h"
#include "play/choice.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

/// Takes the marks off the card and the one that it joins, gives it its depth, moves the marker of
/// a turn, and glides the card to its place.
void showPlacement(MainWindow& w, int slot, const Placement& placement) {
  const auto& [end, laying, joined] = placement;
  CardControls& card = w.card(slot);
  if (joined) w.card(*joined).paintNumbers(handColour);
  card.paintNumbers(handColour);
  w.state.layPosition = laying.position;
  w.state.layColumn = laying.column;
  if (laying.inFront) {
    w.form.bringToFront(card.frame);
  } else {
    w.form.sendToBack(card.frame);
  }
  if (const auto move = markerMoveOf(end, w.game.chain.laidAt[end])) {
    putAt(w.table.markers[move->marker], move->place, w.scale());
  }
  glideCard(w, slot);
  putAt(card.frame, chainPlace(end, laying.position, laying.column), w.scale());
}

}  // namespace

void putAt(Box& box, GridPoint at, double scale) {
  box.left = static_cast<float>(at.left * scale);
  box.top = static_cast<float>(at.top * scale);
}

bool layCard(MainWindow& w, int card, Side by) {
  w.timer.disarm();
  const auto placement = lay(w.game, card, by);
  w.state.lastOffer = {card, placement.has_value()};
  if (!placement) return false;
  // Its buttons would otherwise lay a card that the player no longer has in mind.
  closeChoice(w);
  showPlacement(w, card, *placement);
  return true;
}

void glideCard(MainWindow& w, int slot) {
  const TableState& s = w.state;
  // QUIRK-06: no glide once the player holds no fitting card. One would expect every card to glide;
  // the player sees this one stand in its place at once.
  if (mustPass(w.game, Side::Player)) return;

  Frame& frame = w.card(slot).frame;
  // QUIRK-05: the target is the Right/Top side for both ends. One would expect the card's own side;
  // the player sees a Left/Bottom card fly to the mirror column and jump across.
  const GridPoint target = chainPlace(End::RightTop, s.layPosition, s.layColumn);
  const double scale = w.scale();
  const double left0 = frame.left;
  const double top0 = frame.top;
  const double left1 = steady(target.left * scale);
  const double distance = left1 - left0;
  const double step = std::floor(distance / 5);
  if (step == 0) return;
  const double slope = (target.top * scale - top0) / distance;
  const WindowPoint from{frame.left, frame.top};
  for (double x = left0; step > 0 ? x <= left1 : x >= left1; x += step) {
    frame.left = static_cast<float>(x);
    frame.top = static_cast<float>(top0 + slope * (x - left0));
  }
  w.form.glides.push_back({&frame, from, {frame.left, frame.top}});
}

}  // namespace mevracard
