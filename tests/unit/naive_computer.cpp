#include "naive_computer.h"

// Plain loops and spelled-out conditions on purpose. Nothing here may be shared with src/ai or
// src/game/rules, and nothing may be simplified: the repetition is the check.
namespace mevracard::naive {
namespace {

struct Table {
  explicit Table(const GameState& s)
      : first(s.openNumber.values[0]), second(s.openNumber.values[1]) {
    for (std::size_t i = 0; i < 28; ++i) {
      a[i] = s.cards[i].upper;
      b[i] = s.cards[i].lower;
      held[i] = s.cards[i].held ? 1 : 0;
    }
  }
  int first, second;
  int a[28], b[28], held[28];
  int targetRank[7] = {-1, -1, -1, -1, -1, -1, -1};
};

void rankNumbers(Table& t) {
  int playerCount[7] = {};
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i]) ++playerCount[t.a[i]];
    if (t.held[i] == 1 && t.a[i] != t.b[i]) ++playerCount[t.a[i]];
    if (t.held[i] == 1 && t.a[i] != t.b[i]) ++playerCount[t.b[i]];
  }
  int chosen = 0;
  for (int m = 0; m <= 2; ++m) {
    int bestSoFar = 7;
    for (int n = 0; n <= 6; ++n) {
      // QUIRK-21: the test reads the ranking by number, the result is stored by rank.
      if (t.targetRank[n] == -1 && playerCount[n] < bestSoFar) {
        bestSoFar = playerCount[n];
        chosen = n;
      }
    }
    t.targetRank[m] = chosen;
  }
}

void findBan(Table& t, GameState& s) {
  int playedCount[7] = {};
  for (int i = 0; i <= 27; ++i) {
    if (t.held[i] == 0 && t.a[i] != t.b[i]) ++playedCount[t.a[i]];
    if (t.held[i] == 0 && t.a[i] != t.b[i]) ++playedCount[t.b[i]];
  }
  s.bannedNumber = 7;
  for (int n = 0; n <= 6; ++n) {
    for (int i = 14; i <= 27; ++i) {
      if (playedCount[n] == 5 && (n == t.a[i] || n == t.b[i]) && t.held[i] == 1) {
        s.bannedNumber = n;
        t.targetRank[1] = t.targetRank[0];
        t.targetRank[0] = n;
      }
    }
  }
}

Choice rankRule(const Table& t, GameState& s, int r, int j) {
  s.playCard = j;
  const int T = t.targetRank[r], L = s.bannedNumber, first = t.first, second = t.second;
  const int x = t.a[j], y = t.b[j];
  const auto loses = [&] { return verdictOn(s) == SameNumberVerdict::WouldLose; };
  if (t.held[j] != 1) return {};
  if (x == y && x == first && L == second && loses()) return {A1, j, false};
  if (x == y && x == second && L == first && loses()) return {A2, j, true};
  if (x == y && T == x && x == first && loses()) return {B1, j, false};
  if (x == y && T == x && x == second && loses()) return {B2, j, true};
  if (x != y && ((T == x && y == first) || (T == y && x == first)) && !loses())
    return {C1, j, false};
  if (x != y && ((T == y && x == second) || (T == x && y == second)) && !loses())
    return {C2, j, true};
  return {};
}

Choice besideBan(const Table& t, GameState& s, int j) {
  s.playCard = j;
  const int first = t.first, second = t.second, L = s.bannedNumber, x = t.a[j], y = t.b[j];
  if (t.held[j] != 1) return {};
  if (((first != y && first != x) || second != L) && ((second != x && second != y) || first != L)) {
    return {};
  }
  return verdictOn(s) == SameNumberVerdict::WouldLose ? Choice{} : Choice{D, j, false};
}

Choice doubleOrDanger(const Table& t, GameState& s, int n, int j) {
  s.playCard = j;
  const int first = t.first, second = t.second, x = t.a[j], y = t.b[j];
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i] && (t.a[i] == first || t.a[i] == second) &&
        t.a[i] == n) {
      s.danger = t.a[i];
      break;
    }
  }
  if (n != x && n != y) return {};
  if (t.held[j] == 1 && x == y) {
    if (x == first) return {EDouble, j, false};
    return x == second ? Choice{EDouble, j, true} : Choice{};
  }
  if (t.held[j] != 1 || (x != s.danger && y != s.danger)) return {};
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i] && (t.a[i] == x || t.a[i] == y) && t.a[i] != s.danger) {
      s.secondDanger = t.a[i];
    }
    if (t.a[i] == s.secondDanger) break;  // QUIRK-23: any card, by a number that may be an old one
  }
  if (((x != s.secondDanger && y == second) || (y == first && x != s.secondDanger) ||
       (x == second && y != s.secondDanger) || (x == first && y != s.secondDanger)) &&
      verdictOn(s) != SameNumberVerdict::WouldLose) {
    return {EMixed, j, false};
  }
  return {};
}

Choice noDanger(const Table& t, GameState& s, int n, int j) {
  s.playCard = j;
  const int first = t.first, second = t.second, x = t.a[j], y = t.b[j];
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i] && (t.a[i] == x || t.a[i] == y) && t.a[i] == n) {
      s.danger = t.a[i];
      break;
    }
  }
  if (t.held[j] == 1 &&
      ((x != s.danger && y == second) || (y == first && x != s.danger) ||
       (x == second && y != s.danger) || (x == first && y != s.danger)) &&
      verdictOn(s) != SameNumberVerdict::WouldLose) {
    return {F, j, false};
  }
  return {};
}

}  // namespace

SameNumberVerdict verdictOn(const GameState& s) {
  const Table t(s);
  int sumP = 0, sumC = 0;
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1) sumP += t.a[i] + t.b[i];
    if (t.held[i + 14] == 1) sumC += t.a[i + 14] + t.b[i + 14];
  }
  SameNumberVerdict result = SameNumberVerdict::NoCard;
  for (int j = 14; j <= 27; ++j) {
    if (t.held[j] != 1) continue;
    if (t.first != s.bannedNumber && t.second != s.bannedNumber) {
      result = SameNumberVerdict::Harmless;
    } else if ((t.a[j] == t.first && t.b[j] == t.second) ||
               (t.a[j] == t.second && t.b[j] == t.first)) {
      return sumC - (t.a[j] + t.b[j]) > sumP ? SameNumberVerdict::WouldLose
                                             : SameNumberVerdict::Harmless;
    }
  }
  return result;
}

bool scansUpwards(double draw) {
  const float r = static_cast<float>(2 * draw);
  return r > 1;
}

Choice choose(GameState& s, double draw) {
  Table t(s);
  Choice c;
  rankNumbers(t);
  findBan(t, s);
  for (int r = 0; r <= 1; ++r) {
    for (int j = 14; j <= 27; ++j) {
      if (c = rankRule(t, s, r, scansUpwards(draw) ? j : 41 - j); c.rule != G) return c;
    }
  }
  for (int j = 14; j <= 27; ++j) {
    if (c = besideBan(t, s, j); c.rule != G) return c;
  }
  s.danger = s.secondDanger = 7;
  for (int n = 6; n >= 0; --n) {
    for (int j = 14; j <= 27; ++j) {
      if (c = doubleOrDanger(t, s, n, j); c.rule != G) return c;
    }
  }
  s.danger = 7;
  for (int n = 6; n >= 0; --n) {
    for (int j = 14; j <= 27; ++j) {
      if (c = noDanger(t, s, n, j); c.rule != G) return c;
    }
  }
  return {};
}

}  // namespace mevracard::naive
