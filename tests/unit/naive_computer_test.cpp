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
  return s.cards[at(i)].upper == number || s.cards[at(i)].lower == number;
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
        if (!s.cards[at(i)].held && chance(50))
          std::swap(s.cards[at(i)].upper, s.cards[at(i)].lower);
      }
      s.bannedNumber = below(8);  // left over from earlier turns
      s.danger = below(8);
      s.secondDanger = below(8);
      s.playCard = below(cardCount);
      for (int j = handSize; j < cardCount; ++j) {
        if (s.cards[at(j)].held &&
            (fits(s, j, s.openNumber[End::RightTop]) || fits(s, j, s.openNumber[End::LeftBottom])))
          return s;
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
    for (Card& card : s.cards) card.held = true;
    int slot = 0;
    for (int x = 0; x <= 6; ++x) {
      for (int y = x; y <= 6; ++y, ++slot) {
        s.cards[at(slot)].upper = x;
        s.cards[at(slot)].lower = y;
      }
    }
    while (--slot > 0) exchange(s, slot, below(slot + 1));
    return s;
  }

  static void exchange(GameState& s, int i, int j) {
    std::swap(s.cards[at(i)].upper, s.cards[at(j)].upper);
    std::swap(s.cards[at(i)].lower, s.cards[at(j)].lower);
  }

  static int slotOf(const GameState& s, int x, int y) {
    int i = 0;
    while (s.cards[at(i)].upper != std::min(x, y) || s.cards[at(i)].lower != std::max(x, y)) ++i;
    return i;
  }

  /// Some turns of both sides, each with any card that fits.
  void play(GameState& s) {
    const int opening = slotOf(s, 0, 0);
    s.cards[at(opening)].held = false;
    int side = opening < handSize ? 1 : 0;
    for (int turns = below(26); turns > 0; --turns, side = 1 - side) {
      const int start = below(handSize);
      int& end = s.openNumber.values[at(below(2))];
      for (int k = 0; k < handSize; ++k) {
        const int i = side * handSize + (start + k) % handSize;
        if (!s.cards[at(i)].held || !fits(s, i, end)) continue;
        end = s.cards[at(i)].upper == end ? s.cards[at(i)].lower : s.cards[at(i)].upper;
        s.cards[at(i)].held = false;
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
    s.cards[at(slot)].held = true;
  }

  void arrange(GameState& s) {
    const int player = below(101), computer = below(101);
    for (int i = 0; i < cardCount && player % 2 == 0; ++i) {  // else the hands of the play before
      s.cards[at(i)].held = chance(i < handSize ? player : computer);
    }
    for (int rounds = 1 + below(2); rounds > 0; --rounds) {
      const int scarce = below(7), other = (scarce + 1 + below(6)) % 7;
      for (int n = 0; n <= 6; ++n) {
        if (n != scarce) s.cards[at(slotOf(s, scarce, n))].held = false;
      }
      if (chance(70)) giveToComputer(s, scarce, other);
      if (chance(50)) giveToComputer(s, scarce, scarce);
      if (chance(40)) giveToComputer(s, other, other);
      s.openNumber = {{scarce, chance(10) ? scarce : chance(20) ? below(7) : other}};
      if (chance(50)) std::swap(s.openNumber.values[0], s.openNumber.values[1]);
    }
  }

  std::mt19937_64 random_{28};
};

/// The position in the lines that the script front end reads.
std::string script(const GameState& s, double draw) {
  std::ostringstream out;
  out << std::setprecision(17) << std::fixed << "start\nset computerLevel 2\n";
  for (int i = 0; i < cardCount; ++i) {
    out << "set a(" << i << ") " << s.cards[at(i)].upper << "\nset b(" << i << ") "
        << s.cards[at(i)].lower << "\nset held(" << i << ") " << s.cards[at(i)].held << '\n';
  }
  out << "set kotak(0) " << s.openNumber[End::RightTop] << "\nset kotak(1) "
      << s.openNumber[End::LeftBottom] << "\nset playCard " << s.playCard << "\nset larangan "
      << s.bannedNumber << "\nset bahaya " << s.danger << "\nset bahaya2 " << s.secondDanger
      << '\n';
  out << "random " << draw << "\ncall komputer\n";
  return out.str();
}

/// What is compared: whether the scan goes upwards; the card and whether the second end is asked
/// for; `playCard` and the tactical numbers as left behind; the verdict before and after.
using Outcome = std::vector<std::vector<int>>;

std::vector<int> leftBehind(const GameState& s) {
  return {s.playCard, s.bannedNumber, s.danger, s.secondDanger};
}

Outcome outcomeOf(GameState s, double draw) {
  const int before = static_cast<int>(sameNumberVerdict(s));
  const Scan scan = scanFor(draw);
  const auto chosen = chooseTactically(s, scan);
  const std::vector<int> laid{chosen ? chosen->card : -1, chosen && chosen->end == End::LeftBottom};
  const int after = static_cast<int>(sameNumberVerdict(s));
  return {{scan == Scan::Upwards}, laid, leftBehind(s), {before, after}};
}

Outcome expectedOutcome(GameState s, double draw, std::vector<int>& decided) {
  const int before = static_cast<int>(naive::verdictOn(s));
  const naive::Choice chosen = naive::choose(s, draw);
  ++decided[chosen.rule];
  const int after = static_cast<int>(naive::verdictOn(s));
  return {
      {naive::scansUpwards(draw)}, {chosen.card, chosen.secondEnd}, leftBehind(s), {before, after}};
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
