// The tactical computer against its second writing, over many random positions.
#include "naive_computer.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <random>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

#include "ai/evaluation.h"
#include "ai/selection.h"

namespace mevracard {
namespace {

std::size_t at(int i) { return static_cast<std::size_t>(i); }

bool fits(const GameState& s, int i, int number) {
  return s.a[at(i)] == number || s.b[at(i)] == number;
}

/// Positions in which the computer has a card to lay. Some come from random play, some are arranged
/// around one or two numbers of which five non-doubles lie on the table.
class Positions {
 public:
  GameState next() {
    for (;;) {
      GameState s = dealt();
      const int kind = below(10);
      if (kind < 7) play(s);
      if (kind > 4) arrange(s);
      for (int i = 0; i < cardCount; ++i) {  // cards are turned when they are laid
        if (s.held[at(i)] == 0 && chance(50)) std::swap(s.a[at(i)], s.b[at(i)]);
      }
      s.larangan = below(8);  // left over from earlier turns
      s.bahaya = below(8);
      s.bahaya2 = below(8);
      s.playCard = below(cardCount);
      for (int j = handSize; j < cardCount; ++j) {
        if (s.held[at(j)] == 1 && (fits(s, j, s.kotak[0]) || fits(s, j, s.kotak[1]))) return s;
      }
    }
  }

  /// A drawn number, often near one half, where the scan changes its direction.
  double draw() {
    constexpr double nearHalf[] = {0.5, 0.5 - 1e-16, 0.5 + 2e-16, 0.5 + 1e-9, 0.5 + 1e-7};
    return chance(25) ? nearHalf[below(5)] : std::ldexp(below(1 << 24), -24);
  }

 private:
  int below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  bool chance(int percent) { return below(100) < percent; }

  GameState dealt() {
    GameState s;
    s.held.fill(1);
    int slot = 0;
    for (int x = 0; x <= 6; ++x) {
      for (int y = x; y <= 6; ++y, ++slot) {
        s.a[at(slot)] = x;
        s.b[at(slot)] = y;
      }
    }
    while (--slot > 0) exchange(s, slot, below(slot + 1));
    return s;
  }

  static void exchange(GameState& s, int i, int j) {
    std::swap(s.a[at(i)], s.a[at(j)]);
    std::swap(s.b[at(i)], s.b[at(j)]);
  }

  static int slotOf(const GameState& s, int x, int y) {
    int i = 0;
    while (s.a[at(i)] != std::min(x, y) || s.b[at(i)] != std::max(x, y)) ++i;
    return i;
  }

  /// Some turns of both sides, each with any card that fits.
  void play(GameState& s) {
    const int opening = slotOf(s, 0, 0);
    s.held[at(opening)] = 0;
    int side = opening < handSize ? 1 : 0;
    for (int turns = below(26); turns > 0; --turns, side = 1 - side) {
      const int start = below(handSize);
      int& end = s.kotak[at(below(2))];
      for (int k = 0; k < handSize; ++k) {
        const int i = side * handSize + (start + k) % handSize;
        if (s.held[at(i)] == 0 || !fits(s, i, end)) continue;
        end = s.a[at(i)] == end ? s.b[at(i)] : s.a[at(i)];
        s.held[at(i)] = 0;
        break;
      }
    }
  }

  void giveToComputer(GameState& s, int x, int y) {
    int slot = slotOf(s, x, y);
    if (slot < handSize) {
      exchange(s, slot, slot + handSize);
      slot += handSize;
    }
    s.held[at(slot)] = 1;
  }

  void arrange(GameState& s) {
    const int player = below(101), computer = below(101);
    for (int i = 0; i < cardCount && player % 2 == 0; ++i) {  // else the hands of the play before
      s.held[at(i)] = chance(i < handSize ? player : computer);
    }
    for (int rounds = 1 + below(2); rounds > 0; --rounds) {
      const int scarce = below(7), other = (scarce + 1 + below(6)) % 7;
      for (int n = 0; n <= 6; ++n) {
        if (n != scarce) s.held[at(slotOf(s, scarce, n))] = 0;
      }
      if (chance(70)) giveToComputer(s, scarce, other);
      if (chance(50)) giveToComputer(s, scarce, scarce);
      if (chance(40)) giveToComputer(s, other, other);
      s.kotak = {scarce, chance(10) ? scarce : chance(20) ? below(7) : other};
      if (chance(50)) std::swap(s.kotak[0], s.kotak[1]);
    }
  }

  std::mt19937_64 random_{28};
};

/// The position in the lines that the script front end reads.
std::string script(const GameState& s, double draw) {
  std::ostringstream out;
  out << std::setprecision(17) << std::fixed << "start\nset computerLevel 2\n";
  for (int i = 0; i < cardCount; ++i) {
    out << "set a(" << i << ") " << s.a[at(i)] << "\nset b(" << i << ") " << s.b[at(i)]
        << "\nset held(" << i << ") " << s.held[at(i)] << '\n';
  }
  out << "set kotak(0) " << s.kotak[0] << "\nset kotak(1) " << s.kotak[1] << "\nset playCard "
      << s.playCard << "\nset larangan " << s.larangan << "\nset bahaya " << s.bahaya
      << "\nset bahaya2 " << s.bahaya2 << '\n';
  out << "random " << draw << "\ncall komputer\n";
  return out.str();
}

/// What is compared: the scan; the card and whether the second end is asked for; `playCard`,
/// `larangan`, `bahaya`, `bahaya2` as left behind; HitungMevra before and after, -1 for empty.
using Outcome = std::vector<std::vector<int>>;

std::vector<int> leftBehind(const GameState& s) {
  return {s.playCard, s.larangan, s.bahaya, s.bahaya2};
}

Outcome outcomeOf(GameState s, double draw) {
  const int before = HitungMevra(s).value_or(-1);
  const ScanDirection scan = scanDirection(draw);
  const auto chosen = selectTactically(s, scan);
  const std::vector<int> laid{chosen ? chosen->card : -1, chosen && chosen->end == End::LeftBottom};
  const int after = HitungMevra(s).value_or(-1);
  return {{scan.from, scan.to, scan.step}, laid, leftBehind(s), {before, after}};
}

Outcome expectedOutcome(GameState s, double draw, std::vector<int>& decided) {
  const int before = naive::HitungMevra(s).value_or(-1);
  const std::vector<int> scan =
      naive::scansUpwards(draw) ? std::vector{14, 27, 1} : std::vector{27, 14, -1};
  const naive::Choice chosen = naive::choose(s, draw);
  ++decided[chosen.rule];
  const int after = naive::HitungMevra(s).value_or(-1);
  return {scan, {chosen.card, chosen.secondEnd}, leftBehind(s), {before, after}};
}

// Catches a wrong index, a lost reset, a shift too few or a comparison the wrong way round in any
// of the rules (QUIRK-23), the ranking (QUIRK-21, QUIRK-22, QUIRK-35) and the evaluation.
TEST(TacticalComputer, ChoosesLikeItsSecondWriting) {
  Positions positions;
  std::vector<int> decided(naive::ruleCount);
  for (int i = 0, differences = 0; i < 250'000 && differences < 3; ++i) {
    const GameState position = positions.next();
    const double draw = positions.draw();
    const Outcome expected = expectedOutcome(position, draw, decided);
    const Outcome actual = outcomeOf(position, draw);
    if (actual == expected) continue;
    ++differences;
    EXPECT_EQ(actual, expected) << script(position, draw);
  }
  EXPECT_GE(*std::min_element(decided.begin(), decided.end()), 1000)
      << "a rule decides too seldom; A1 to G: " << testing::PrintToString(decided);
}

}  // namespace
}  // namespace mevracard
