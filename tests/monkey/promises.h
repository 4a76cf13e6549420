#pragma once

#include <optional>

#include "simulate/random_stream.h"
#include "simulate/table_watch.h"

namespace mevracard::monkey {

/// What must hold of a running game in its real window, and what of the game the monkey has to
/// know. What is broken ends the program, see `fail`.
class Promises {
 public:
  Promises(MainWindow& w, simulate::Met& met) : w_(w), table_(w, met) {}

  /// After everything that the game has taken in: the table, the hands, the counts, whose turn.
  void checkTable();
  /// At any moment: somebody answers the player.
  void checkWindows() const;
  /// At any moment: every window shows, dot by dot, what a fresh painting of the same data gives.
  void checkPictures() const;
  /// At any moment: a covered card is the same whatever its numbers are, to the eye, to a screen
  /// reader, in the clipboard.
  void checkCoveredCards();

  /// A card that the player could lay.
  [[nodiscard]] const Box* fittingCard(simulate::RandomStream& random) const;

 private:
  MainWindow& w_;
  simulate::TableWatch table_;
};

}  // namespace mevracard::monkey
