// The pure rules of a game: dealing, and the count at the end.
#include "game/deal.h"

#include <set>

#include <gtest/gtest.h>

#include "game/scoring.h"

namespace mevracard {
namespace {

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
  // The last four characters of other dates.
  for (const auto& [date, year] : {std::pair{"1/2/26", 2.0},
                                   {"1.2.26", 2.26},
                                   {"1-2-26", 2.0},
                                   {"1/2  26", 26.0},
                                   {"-126", -126.0},
                                   {"", 0.0}}) {
    EXPECT_DOUBLE_EQ(dealSeedOf(date, 1, 1), year / 2);
  }
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
