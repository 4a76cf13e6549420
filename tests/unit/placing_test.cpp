// Where a window that opens over the table is put.
#include "platform/placing.h"

#include <random>

#include <gtest/gtest.h>

namespace mevracard {
namespace {

constexpr Dots room{10, 20, 60, 40};

std::vector<long> costOf(const Dots& place, const Dots& wanted, const ClearGroups& clear) {
  std::vector<long> cost = coveredBy(place, clear);
  cost.push_back(std::abs(place.left - wanted.left) + std::abs(place.top - wanted.top));
  return cost;
}

// No other place covers less of what weighs most, or is as good and nearer.
TEST(Placing, FindsTheBestOfAllPlaces) {
  std::mt19937 random(5);
  const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
  for (int round = 0; round < 60; ++round) {
    ClearGroups clear(3);
    for (auto& group : clear) {
      for (int i = below(5); i > 0; --i) {
        group.push_back({below(80), below(70), 1 + below(30), 1 + below(20)});
      }
    }
    const Dots wanted{below(80), below(70), 5 + below(50), 5 + below(30)};
    const Dots place = clearPlace(wanted, room, clear);
    EXPECT_TRUE(room.holds(place));
    auto least = costOf(place, wanted, clear);
    for (int left = room.left; left + wanted.width <= room.right(); ++left) {
      for (int top = room.top; top + wanted.height <= room.bottom(); ++top) {
        EXPECT_LE(least, costOf({left, top, wanted.width, wanted.height}, wanted, clear)) << round;
      }
    }
  }
}

// One dot of the first group weighs more than all of the second, and what is too large begins in
// the corner.
TEST(Placing, WeighsTheGroupsInTheirOrder) {
  const ClearGroups clear{{{10, 20, 1, 40}}, {{11, 20, 59, 40}}};
  const Dots wanted{10, 20, 30, 40};
  EXPECT_EQ(clearPlace(wanted, room, clear), (Dots{11, 20, 30, 40}));
  EXPECT_EQ(coveredBy(wanted, clear), (std::vector<long>{40, 29 * 40}));
  EXPECT_EQ(placeInside({40, 50, 100, 100}, room), (Dots{10, 20, 100, 100}));
}

}  // namespace
}  // namespace mevracard
