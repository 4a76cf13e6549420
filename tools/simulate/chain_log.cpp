#include "simulate/chain_log.h"

#include <stdexcept>

#include "game/placement.h"

namespace mevracard::simulate {

namespace {

/// The card on the table whose frame stands at the n-th place of an end.
std::size_t slotAt(const MainWindow& w, GridPoint place) {
  Frame wanted;
  putAt(wanted, place, w.scaleFactor());
  for (std::size_t i = 0; i < cardCount; ++i) {
    if (w.state.held[i] == 0 && w.k[i].left == wanted.left && w.k[i].top == wanted.top) return i;
  }
  throw std::logic_error("the chain has grown, but no card lies there");
}

LaidCard cardAt(const MainWindow& w, End end, int n) {
  const Laying laying = layingOf(end, n);
  const std::size_t slot = slotAt(w, chainPlace(end, laying.position, laying.column));
  const int upper = w.state.a[slot];
  const int lower = w.state.b[slot];
  return {static_cast<int>(slot), end, laying.upperTouches ? upper : lower,
          laying.upperTouches ? lower : upper};
}

}  // namespace

const std::vector<LaidCard>& ChainLog::cardsLaid(const MainWindow& w) {
  laid_.clear();
  const std::array<int, 2> counts{w.state.lina, w.state.linb};
  for (const End end : {End::RightTop, End::LeftBottom}) {
    int& seen = counts_[static_cast<std::size_t>(end)];
    while (seen < counts[static_cast<std::size_t>(end)]) laid_.push_back(cardAt(w, end, ++seen));
  }
  return laid_;
}

}  // namespace mevracard::simulate
