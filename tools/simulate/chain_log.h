#pragma once

#include <vector>

#include "ui/main_window.h"

namespace mevracard::simulate {

/// A card that was laid: which, at which end, the number that touches the chain and the one that it
/// opened.
struct JoinedCard {
  int slot = 0;
  End end = End::RightTop;
  int touching = 0;
  int opened = 0;
};

/// Follows the chain from outside, by the places of the cards on the table.
class ChainLog {
 public:
  /// The cards laid since the last call, which was before the table was scaled anew: those of the
  /// Right/Top end, then those of the Left/Bottom end, each from the chain outwards. Throws
  /// std::logic_error if no card lies where the chain has grown.
  [[nodiscard]] const std::vector<JoinedCard>& cardsLaid(const MainWindow& w);
  /// A new game lies on the table.
  void restart() { seen_ = {}; }

 private:
  PerEnd<int> seen_;  ///< how many cards of each end
  std::vector<JoinedCard> laid_;
};

}  // namespace mevracard::simulate
