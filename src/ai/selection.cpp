#include "ai/selection.h"

#include <array>

#include "ai/evaluation.h"
#include "ai/tactics.h"

namespace mevracard {

namespace {

/// A card under examination: x over y, against the active numbers, a target number and `larangan`.
struct View {
  int x, y;
  int first, second;
  int target, larangan;

  [[nodiscard]] bool isDouble() const { return x == y; }
  [[nodiscard]] bool fits(int number) const { return number == first || number == second; }
  /// The card fits an end with one number and the number that it would open is not `avoid`.
  [[nodiscard]] bool coversWithoutOpening(int avoid) const {
    return (x != avoid && fits(y)) || (y != avoid && fits(x));
  }
};

View viewOf(const GameState& s, int card, int target = -1) {
  const auto i = static_cast<std::size_t>(card);
  return {s.a.at(i), s.b.at(i), s.kotak[0], s.kotak[1], target, s.larangan};
}

bool holds(const GameState& s, int card) { return s.held.at(static_cast<std::size_t>(card)) == 1; }

/// One row of the rank scan: the card it wants, what the same-number evaluation must say, the end.
struct RankRule {
  const char* name;
  bool (*applies)(const View& v);
  bool (*evaluation)(const GameState& s);
  End end;
};

constexpr std::array<RankRule, 6> rankRules{{
    {"A1", [](const View& v) { return v.isDouble() && v.x == v.first && v.larangan == v.second; },
     sameNumberWouldLose, End::RightTop},
    {"A2", [](const View& v) { return v.isDouble() && v.x == v.second && v.larangan == v.first; },
     sameNumberWouldLose, End::LeftBottom},
    {"B1", [](const View& v) { return v.isDouble() && v.target == v.x && v.x == v.first; },
     sameNumberWouldLose, End::RightTop},
    {"B2", [](const View& v) { return v.isDouble() && v.target == v.x && v.x == v.second; },
     sameNumberWouldLose, End::LeftBottom},
    {"C1",
     [](const View& v) {
       return !v.isDouble() &&
              ((v.target == v.x && v.y == v.first) || (v.target == v.y && v.x == v.first));
     },
     sameNumberIsSafe, End::RightTop},
    {"C2",
     [](const View& v) {
       return !v.isDouble() &&
              ((v.target == v.y && v.x == v.second) || (v.target == v.x && v.y == v.second));
     },
     sameNumberIsSafe, End::LeftBottom},
}};

/// Rules A to C: for the two best targets, each card in scan order.
std::optional<Selection> scanRanks(GameState& s, ScanDirection scan) {
  TargetRank rank = targetRank(playerCounts(s));
  findLarangan(s, rank);
  std::optional<Selection> found;
  for (std::size_t r = 0; r < 2 && !found; ++r) {
    scanHand(s, scan, [&](int j) {
      if (!holds(s, j)) return false;
      const View view = viewOf(s, j, rank[r]);
      for (const RankRule& rule : rankRules) {
        if (!rule.applies(view) || !rule.evaluation(s)) continue;
        found = Selection{j, rule.end};
        return true;
      }
      return false;
    });
  }
  return found;
}

/// Rule D: a card for the end opposite the one that shows `larangan`.
std::optional<Selection> passD(GameState& s) {
  std::optional<Selection> found;
  scanHand(s, upwards, [&](int j) {
    if (!holds(s, j)) return false;
    const bool opposite = (matchesEnd(s, j, End::RightTop) && s.kotak[1] == s.larangan) ||
                          (matchesEnd(s, j, End::LeftBottom) && s.kotak[0] == s.larangan);
    if (!opposite || !sameNumberIsSafe(s)) return false;
    found = Selection{j, End::RightTop};
    return true;
  });
  return found;
}

/// The player holds the double `number`-`number` in this slot.
bool playerHoldsDouble(const GameState& s, int slot, int number) {
  return holds(s, slot) && isDouble(s, slot) && bears(s, slot, number);
}

/// Any slot of the player's with that double.
bool playerHoldsDouble(const GameState& s, int number) {
  for (int i = playerFirst; i <= playerLast; ++i) {
    if (playerHoldsDouble(s, i, number)) return true;
  }
  return false;
}

/// The double that the player could lay next besides `bahaya`, among the numbers of card j.
void findSecondDanger(GameState& s, int j) {
  for (int i = playerFirst; i <= playerLast; ++i) {
    const int x = s.a[static_cast<std::size_t>(i)];
    if (playerHoldsDouble(s, i, x) && bears(s, j, x) && x != s.bahaya) s.bahaya2 = x;
    // QUIRK-23: any card of the player's slots ends the search here, held or not, also by a number
    // left over from an earlier card. One would expect each search to start afresh; the computer
    // may then overlook a double. Meant.
    if (x == s.bahaya2) return;
  }
}

/// Rule E for one card and one number n that it bears.
std::optional<Selection> coverDanger(GameState& s, int j) {
  const View v = viewOf(s, j);
  if (!holds(s, j)) return std::nullopt;
  if (v.isDouble()) {
    if (v.x == v.first) return Selection{j, End::RightTop};
    if (v.x == v.second) return Selection{j, End::LeftBottom};
    return std::nullopt;
  }
  if (!bears(s, j, s.bahaya)) return std::nullopt;
  findSecondDanger(s, j);
  if (!v.coversWithoutOpening(s.bahaya2) || !sameNumberIsSafe(s)) return std::nullopt;
  return Selection{j, End::RightTop};
}

/// Rule E: the computer's highest double that fits, or a card that covers the end which fits a
/// double of the player's (`bahaya`).
std::optional<Selection> passE(GameState& s) {
  s.bahaya = noTacticalNumber;
  s.bahaya2 = noTacticalNumber;
  std::optional<Selection> found;
  for (int n = 6; n >= 0 && !found; --n) {
    scanHand(s, upwards, [&](int j) {
      const bool open = n == s.kotak[0] || n == s.kotak[1];
      if (open && playerHoldsDouble(s, n)) s.bahaya = n;
      if (bears(s, j, n)) found = coverDanger(s, j);
      return found.has_value();
    });
  }
  return found;
}

/// Rule F: the first card that fits without opening the number of a double of the player's.
std::optional<Selection> passF(GameState& s) {
  s.bahaya = noTacticalNumber;
  std::optional<Selection> found;
  for (int n = 6; n >= 0 && !found; --n) {
    scanHand(s, upwards, [&](int j) {
      if (bears(s, j, n) && playerHoldsDouble(s, n)) s.bahaya = n;
      if (holds(s, j) && viewOf(s, j).coversWithoutOpening(s.bahaya) && sameNumberIsSafe(s)) {
        found = Selection{j, End::RightTop};
      }
      return found.has_value();
    });
  }
  return found;
}

}  // namespace

ScanDirection scanDirection(double draw) {
  // Single precision decides what still counts as one half; exactly one half scans downwards.
  const auto r = static_cast<float>(2 * draw);
  return r > 1 ? upwards : ScanDirection{computerLast, computerFirst, -1};
}

std::optional<Selection> selectTactically(GameState& s, ScanDirection scan) {
  if (const auto found = scanRanks(s, scan)) return found;
  if (const auto found = passD(s)) return found;
  if (const auto found = passE(s)) return found;
  return passF(s);
}

}  // namespace mevracard
