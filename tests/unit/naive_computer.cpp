#include "naive_computer.h"

// Plain loops and spelled-out conditions on purpose. Nothing here may be shared with src/ai or
// src/game/rules, and nothing may be simplified: the repetition is the check.
namespace mevracard::naive {
namespace {

struct Table {
  explicit Table(const GameState& s)
      : first(s.kotak[0]), second(s.kotak[1]), a(s.a.data()), b(s.b.data()), held(s.held.data()) {}
  int first, second;
  const int *a, *b, *held;
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

void findLarangan(Table& t, GameState& s) {
  int playedCount[7] = {};
  for (int i = 0; i <= 27; ++i) {
    if (t.held[i] == 0 && t.a[i] != t.b[i]) ++playedCount[t.a[i]];
    if (t.held[i] == 0 && t.a[i] != t.b[i]) ++playedCount[t.b[i]];
  }
  s.larangan = 7;
  for (int n = 0; n <= 6; ++n) {
    for (int i = 14; i <= 27; ++i) {
      if (playedCount[n] == 5 && (n == t.a[i] || n == t.b[i]) && t.held[i] == 1) {
        s.larangan = n;
        t.targetRank[1] = t.targetRank[0];
        t.targetRank[0] = n;
      }
    }
  }
}

Choice rankRule(const Table& t, GameState& s, int r, int j) {
  s.playCard = j;
  const int T = t.targetRank[r], L = s.larangan, first = t.first, second = t.second;
  const int x = t.a[j], y = t.b[j];
  const auto is1 = [&] { return HitungMevra(s) == 1; };
  const auto is0 = [&] { return HitungMevra(s) != 1; };
  if (t.held[j] != 1) return {};
  if (x == y && x == first && L == second && is1()) return {A1, j, false};
  if (x == y && x == second && L == first && is1()) return {A2, j, true};
  if (x == y && T == x && x == first && is1()) return {B1, j, false};
  if (x == y && T == x && x == second && is1()) return {B2, j, true};
  if (x != y && ((T == x && y == first) || (T == y && x == first)) && is0()) return {C1, j, false};
  if (x != y && ((T == y && x == second) || (T == x && y == second)) && is0()) return {C2, j, true};
  return {};
}

Choice larangan(const Table& t, GameState& s, int j) {
  s.playCard = j;
  const int first = t.first, second = t.second, L = s.larangan, x = t.a[j], y = t.b[j];
  if (t.held[j] != 1) return {};
  if (((first != y && first != x) || second != L) && ((second != x && second != y) || first != L)) {
    return {};
  }
  return HitungMevra(s) == 1 ? Choice{} : Choice{D, j, false};
}

Choice bahaya(const Table& t, GameState& s, int n, int j) {
  s.playCard = j;
  const int first = t.first, second = t.second, x = t.a[j], y = t.b[j];
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i] && (t.a[i] == first || t.a[i] == second) &&
        t.a[i] == n) {
      s.bahaya = t.a[i];
      break;
    }
  }
  if (n != x && n != y) return {};
  if (t.held[j] == 1 && x == y) {
    if (x == first) return {EDouble, j, false};
    return x == second ? Choice{EDouble, j, true} : Choice{};
  }
  if (t.held[j] != 1 || (x != s.bahaya && y != s.bahaya)) return {};
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i] && (t.a[i] == x || t.a[i] == y) && t.a[i] != s.bahaya) {
      s.bahaya2 = t.a[i];
    }
    if (t.a[i] == s.bahaya2) break;  // QUIRK-23: any card, by a number that may be an old one
  }
  if (((x != s.bahaya2 && y == second) || (y == first && x != s.bahaya2) ||
       (x == second && y != s.bahaya2) || (x == first && y != s.bahaya2)) &&
      HitungMevra(s) != 1) {
    return {EMixed, j, false};
  }
  return {};
}

Choice secondBahaya(const Table& t, GameState& s, int n, int j) {
  s.playCard = j;
  const int first = t.first, second = t.second, x = t.a[j], y = t.b[j];
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1 && t.a[i] == t.b[i] && (t.a[i] == x || t.a[i] == y) && t.a[i] == n) {
      s.bahaya = t.a[i];
      break;
    }
  }
  if (t.held[j] == 1 &&
      ((x != s.bahaya && y == second) || (y == first && x != s.bahaya) ||
       (x == second && y != s.bahaya) || (x == first && y != s.bahaya)) &&
      HitungMevra(s) != 1) {
    return {F, j, false};
  }
  return {};
}

}  // namespace

std::optional<int> HitungMevra(const GameState& s) {
  const Table t(s);
  int sumP = 0, sumC = 0;
  for (int i = 0; i <= 13; ++i) {
    if (t.held[i] == 1) sumP += t.a[i] + t.b[i];
    if (t.held[i + 14] == 1) sumC += t.a[i + 14] + t.b[i + 14];
  }
  std::optional<int> result;
  for (int j = 14; j <= 27; ++j) {
    if (t.held[j] != 1) continue;
    if (t.first != s.larangan && t.second != s.larangan) {
      result = 0;
    } else if ((t.a[j] == t.first && t.b[j] == t.second) ||
               (t.a[j] == t.second && t.b[j] == t.first)) {
      return sumC - (t.a[j] + t.b[j]) > sumP ? 1 : 0;
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
  findLarangan(t, s);
  for (int r = 0; r <= 1; ++r) {
    for (int j = 14; j <= 27; ++j) {
      if (c = rankRule(t, s, r, scansUpwards(draw) ? j : 41 - j); c.rule != G) return c;
    }
  }
  for (int j = 14; j <= 27; ++j) {
    if (c = larangan(t, s, j); c.rule != G) return c;
  }
  s.bahaya = s.bahaya2 = 7;
  for (int n = 6; n >= 0; --n) {
    for (int j = 14; j <= 27; ++j) {
      if (c = bahaya(t, s, n, j); c.rule != G) return c;
    }
  }
  s.bahaya = 7;
  for (int n = 6; n >= 0; --n) {
    for (int j = 14; j <= 27; ++j) {
      if (c = secondBahaya(t, s, n, j); c.rule != G) return c;
    }
  }
  return {};
}

}  // namespace mevracard::naive
