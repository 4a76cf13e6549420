// The pure rules of the table: dealing, matching, the winding chain, the count at the end.
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "game/deal.h"
#include "game/grid.h"
#include "game/scoring.h"
#include "platform/seeded_random.h"

namespace mevracard {
namespace {

// A wrong bound in the shuffle shows as a lost or doubled pair, or as a pair that stays in its slot
// (QUIRK-03): then the permutation is no single cycle.
TEST(Deal, ShufflesAllPairsInOneSingleCycle) {
  std::vector<std::pair<int, int>> set;
  for (int x = 0; x <= 6; ++x) {
    for (int y = x; y <= 6; ++y) set.emplace_back(x, y);
  }
  SeededRandom random;
  for (int round = 0; round < 500; ++round) {
    random.seed(round);
    const Deck deck = shuffledDeck([&] { return random.next(); });
    EXPECT_EQ(std::set(deck.begin(), deck.end()), std::set(set.begin(), set.end()));
    std::size_t slot = 0;
    std::size_t length = 0;
    do {
      const auto found = std::find(deck.begin(), deck.end(), set[slot]);
      slot = static_cast<std::size_t>(found - deck.begin());
      ++length;
    } while (slot != 0 && length <= cardCount);
    ASSERT_EQ(length, static_cast<std::size_t>(cardCount));
  }
}

// The extreme draws must stay inside the set: 0 and the largest number below 1.
TEST(Deal, TakesTheExtremeDraws) {
  for (const double draw : {0.0, 1.0 - 1e-16}) {
    const Deck deck = shuffledDeck([&] { return draw; });
    EXPECT_EQ(std::set(deck.begin(), deck.end()).size(), static_cast<std::size_t>(cardCount));
  }
}

// QUIRK-08: only year, minute and second enter; the first second of an hour must not divide by 0.
TEST(Deal, SeedIsYearByMinuteAndSecond) {
  EXPECT_DOUBLE_EQ(dealSeedOf("1/2/2026", 3, 4), 2026.0 / 7);
  EXPECT_DOUBLE_EQ(dealSeedOf("31/12/2026", 4, 3), 2026.0 / 7);
  EXPECT_DOUBLE_EQ(dealSeedOf("1/2/2026", 0, 0), 2026.0);
  EXPECT_DOUBLE_EQ(dealSeedOf("1/2/26", 1, 1), 2.0 / 2);  // "2/26" begins with a 2
  EXPECT_DOUBLE_EQ(dealSeedOf("1.2.26", 1, 1), 2.26 / 2);
  EXPECT_DOUBLE_EQ(dealSeedOf("1/2  26", 1, 1), 26.0 / 2);
  EXPECT_DOUBLE_EQ(dealSeedOf("", 1, 1), 0.0);
}

struct LayingRow {
  End end;
  int n, position, column;
  bool inFront, upperTouches;
};

// The turns of the chain, by hand: the last card before and the first after each of them. QUIRK-01
// is the last row of each end: it keeps the touching half of the row before.
TEST(Grid, WindsAtTheTurns) {
  constexpr End right = End::RightTop, left = End::LeftBottom;
  for (const LayingRow& row : {LayingRow{right, 1, 7, 0, true, false},
                               {right, 7, 13, 0, true, false},
                               {right, 8, 13, 1, false, true},
                               {right, 21, 0, 1, false, true},
                               {right, 22, 0, 2, true, true},
                               {right, 24, 2, 2, true, true},
                               {left, 1, 5, 0, false, true},
                               {left, 6, 0, 0, false, true},
                               {left, 7, 0, 1, true, false},
                               {left, 20, 13, 1, true, false},
                               {left, 21, 13, 2, false, false},
                               {left, 23, 11, 2, false, false}}) {
    const Laying laying = layingOf(row.end, row.n);
    SCOPED_TRACE(row.n);
    EXPECT_EQ(laying.position, row.position);
    EXPECT_EQ(laying.column, row.column);
    EXPECT_EQ(laying.inFront, row.inFront);
    EXPECT_EQ(laying.upperTouches, row.upperTouches);
  }
  EXPECT_EQ(chainPlace(left, 0, 1).left, 5880);
  EXPECT_EQ(chainPlace(right, 13, 2).left, 8760);
  EXPECT_EQ(chainPlace(right, 13, 2).top, 1680);
}

// The order of the tie-breaks, QUIRK-20: a full tie is the player's loss.
TEST(Scoring, DecidesADeadlock) {
  EXPECT_TRUE(playerWinsDeadlock({9, 5}, {10, 1}));
  EXPECT_FALSE(playerWinsDeadlock({11, 1}, {10, 5}));
  EXPECT_TRUE(playerWinsDeadlock({10, 2}, {10, 3}));
  EXPECT_FALSE(playerWinsDeadlock({10, 3}, {10, 2}));
  EXPECT_FALSE(playerWinsDeadlock({10, 2}, {10, 2}));
}

}  // namespace
}  // namespace mevracard
