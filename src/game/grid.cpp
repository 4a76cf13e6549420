#include "game/grid.h"

#include <cmath>

namespace mevracard {

double scaleOf(int tableSize, int screenHeight) {
  return static_cast<double>(tableSize) / largestTableSize * 0.96 * screenHeight / 11520.0;
}

double steady(double value) { return std::nearbyint(value * 0x1p20) / 0x1p20; }

GridPoint handPlace(int slot) {
  const bool player = ownerOf(slot) == Side::Player;
  const int column = player ? slot : slot - handSize;
  return {3360.0 + 600.0 * column, player ? 9400.0 : 240.0};
}

GridPoint chainPlace(End end, int position, int column) {
  const double outward = end == End::RightTop ? 960.0 : -960.0;
  return {6840.0 + outward * column, 7920.0 - 480.0 * position};
}

Laying layingOf(End end, int n) {
  if (end == End::RightTop) {
    if (n <= 7) return {n + 6, 0, true, false};
    if (n <= 21) return {21 - n, 1, false, true};
    // QUIRK-01: the chain has turned upwards again, but the card keeps the orientation of the
    // downward column. One would expect the matching number against the chain; the player sees it
    // on the outer side.
    return {n - 22, 2, true, true};
  }
  if (n <= 6) return {6 - n, 0, false, true};
  if (n <= 20) return {n - 7, 1, true, false};
  return {34 - n, 2, false, false};  // QUIRK-01 at the other end
}

std::optional<MarkerMove> markerMoveOf(End end, int n) {
  if (end == End::RightTop) {
    if (n == 8) return MarkerMove{0, {7320, 2280}};
    if (n == 22) return MarkerMove{0, {8280, 8160}};
  } else {
    if (n == 7) return MarkerMove{1, {6360, 8160}};
    // QUIRK-02: the second turn of the Left/Bottom end takes the other end's marker. One would
    // expect marker 1; the player sees the Right/Top end's turn lose its mark.
    if (n == 21) return MarkerMove{0, {5400, 2280}};
  }
  return std::nullopt;
}

GridPoint markerPark(std::size_t marker) { return {14040.0, marker == 0 ? 1800.0 : 2280.0}; }

}  // namespace mevracard
