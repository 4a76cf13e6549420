#include "simulate/chain_log.h"

#include <stdexcept>

#include "play/placement.h"

namespace mevracard::simulate {

namespace {

/// The card on the table whose frame stands at the n-th place of an end.
int slotAt(const MainWindow& w, GridPoint place) {
  Frame wanted;
  putAt(wanted, place, w.scale());
  for (const int slot : allSlots) {
    const Frame& frame = w.cards[static_cast<std::size_t>(slot)].frame;
    if (!w.game.card(slot).held && frame.left == wanted.left && frame.top == wanted.top) {
      return slot;
    }
  }
  throw std::logic_error("the chain has grown, but no card lies there");
}

JoinedCard cardAt(const MainWindow& w, End end, int n) {
  const Laying laying = layingOf(end, n);
  const int slot = slotAt(w, chainPlace(end, laying.position, laying.column));
  const auto [upper, lower, held] = w.game.card(slot);
  return {slot, end, laying.upperTouches ? upper : lower, laying.upperTouches ? lower : upper};
}

}  // namespace

const std::vector<JoinedCard>& ChainLog::cardsLaid(const MainWindow& w) {
  laid_.clear();
  for (const End end : {End::RightTop, End::LeftBottom}) {
    while (seen_[end] < w.game.chain.laidAt[end]) laid_.push_back(cardAt(w, end, ++seen_[end]));
  }
  return laid_;
}

}  // namespace mevracard::simulate
