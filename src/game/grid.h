#pragma once

#include <optional>

#include "game/cards.h"

/// Where cards lie: hand rows, the winding chain, the turn markers. Design twips, to be multiplied
/// by the scale in force.
namespace mevracard {

struct GridPoint {
  double left = 0, top = 0;
};

constexpr int smallestTableSize = 70, largestTableSize = 99;  ///< what the player can choose
constexpr int designTableSize = 100;                          ///< until the settings are read

/// Place of the 0-0.
constexpr int openingPosition = 6;

/// Factor between design twips and the table for a table size and a screen height in twips: 0.96
/// for the largest size on a screen 11520 twips high.
[[nodiscard]] double scaleOf(int tableSize, int screenHeight);

/// A computed fraction that something hangs on, to 2^-20: finer than any place on the table, far
/// coarser than what machines round differently. What is rounded, counted or compared from here on
/// comes out alike on all of them.
[[nodiscard]] double steady(double value);

/// A card's place in its owner's hand row.
[[nodiscard]] GridPoint handPlace(int slot);

/// The chain lies in columns of 14 positions, position 0 at the bottom. Column numbers count from
/// the centre column outwards, to the right for end RightTop and to the left for LeftBottom.
[[nodiscard]] GridPoint chainPlace(End end, int position, int column);

/// How the n-th card of an end lies (n counts from 1).
struct Laying {
  int position = 0;
  int column = 0;
  bool inFront = false;       ///< over all other cards, else behind them
  bool upperTouches = false;  ///< the upper number touches the chain, the lower one points outwards
};
[[nodiscard]] Laying layingOf(End end, int n);

/// The turn marker (0 or 1) that the n-th card of an end moves, and where to.
struct MarkerMove {
  std::size_t marker = 0;
  GridPoint place;
};
[[nodiscard]] std::optional<MarkerMove> markerMoveOf(End end, int n);
/// The marker's parking place in the table's corner.
[[nodiscard]] GridPoint markerPark(std::size_t marker);

}  // namespace mevracard
