#include "game/deal.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "game/leading_number.h"

namespace mevracard {

double dealSeedOf(std::string_view shortDate, int minute, int second) {
  const auto tail = std::min<std::size_t>(4, shortDate.size());
  const double year = leadingNumber(shortDate.substr(shortDate.size() - tail));
  // The first second of an hour has no sum to divide by; 1 stands in for it.
  const int sum = minute + second;
  return year / (sum == 0 ? 1 : sum);
}

namespace {

/// Which of so many even parts of [0, 1) a draw falls into. Counted in whole steps of 2^-53, so
/// that no machine rounds it into another part; a draw reaches up to the next step, as 0.3 is 3
/// of 10.
std::size_t partOf(double draw, std::uint64_t parts) {
  const auto reach = (static_cast<std::uint64_t>(draw * 0x1p53) + 1) * parts;
  return parts == 0 ? 0 : static_cast<std::size_t>((reach - 1) >> 53U);
}

/// QUIRK-03: but for 0 no `v` swaps with itself, so the permutation is one single cycle. One would
/// expect every permutation; the player never sees the n-th pair (the 0-0 is the first) in the n-th
/// slot.
std::array<std::size_t, cardCount> singleCycle(const std::function<double()>& draw) {
  std::array<std::size_t, cardCount> slots{};
  std::iota(slots.begin(), slots.end(), std::size_t{0});
  for (std::size_t v = cardCount; v-- > 0;) {
    std::swap(slots[v], slots[partOf(draw(), v)]);
  }
  return slots;
}

}  // namespace

Deck shuffledDeck(const std::function<double()>& draw) {
  const auto slots = singleCycle(draw);
  Deck deck;
  std::size_t n = 0;
  for (int x = 0; x <= 6; ++x) {
    for (int y = x; y <= 6; ++y) deck[slots[n++]] = {x, y};
  }
  return deck;
}

void deal(Game& game, const Deck& deck) {
  for (const int slot : allSlots) {
    const auto [upper, lower] = deck[static_cast<std::size_t>(slot)];
    game.card(slot) = {upper, lower, true};
  }
  game.chain.laidAt = {};
  game.chain.openings = 0;
  game.chain.laid.clear();
  game.aimsLeftBottom = {};
  game.counts = {};
  game.ending.deadlock = false;
  game.mind = {};
}

}  // namespace mevracard
