#include "ai/computer_moves.h"

#include <algorithm>

#include "ai/evaluation.h"
#include "ai/tactics.h"
#include "game/rules.h"

namespace mevracard {

namespace {

/// A card under examination: x over y, against the open numbers, a target and the banned number.
struct Candidate {
  int x, y;
  int first, second;
  int target, banned;

  [[nodiscard]] bool isDouble() const { return x == y; }
  [[nodiscard]] bool isOpen(int number) const { return number == first || number == second; }
  /// The card fits an end with one number and the number that it would open is not `avoid`.
  [[nodiscard]] bool coversWithoutOpening(int avoid) const {
    return (x != avoid && isOpen(y)) || (y != avoid && isOpen(x));
  }
};

Candidate candidateOf(const Game& game, int card, int target = noNumber) {
  return {game.card(card).upper,
          game.card(card).lower,
          game.chain.openNumber[End::RightTop],
          game.chain.openNumber[End::LeftBottom],
          target,
          game.mind.bannedNumber};
}

/// Examines the computer's cards in scan order until one makes a move.
template <typename Examine>
std::optional<Move> firstMove(Scan scan, Examine examine) {
  for (const int card : scanned(Side::Computer, scan)) {
    if (const std::optional<Move> move = examine(card)) return move;
  }
  return std::nullopt;
}

/// One row of rules A to C: the card it wants, whether a same number must lose or must not lose the
/// count, the end.
struct TargetRule {
  bool (*applies)(const Candidate& v);
  bool sameNumberLoses;
  End end;
};

constexpr std::array<TargetRule, 6> targetRules{{
    // A1, A2: a double that fits one end, while the other shows the banned number.
    {[](const Candidate& v) { return v.isDouble() && v.x == v.first && v.banned == v.second; },
     true, End::RightTop},
    {[](const Candidate& v) { return v.isDouble() && v.x == v.second && v.banned == v.first; },
     true, End::LeftBottom},
    // B1, B2: the double of a target that fits an end.
    {[](const Candidate& v) { return v.isDouble() && v.target == v.x && v.x == v.first; }, true,
     End::RightTop},
    {[](const Candidate& v) { return v.isDouble() && v.target == v.x && v.x == v.second; }, true,
     End::LeftBottom},
    // C1, C2: another card that turns an end into a target.
    {[](const Candidate& v) {
       return !v.isDouble() &&
              ((v.target == v.x && v.y == v.first) || (v.target == v.y && v.x == v.first));
     },
     false, End::RightTop},
    {[](const Candidate& v) {
       return !v.isDouble() &&
              ((v.target == v.y && v.x == v.second) || (v.target == v.x && v.y == v.second));
     },
     false, End::LeftBottom},
}};

/// Rules A to C: for both targets, each card in scan order.
std::optional<Move> aimAtTargets(Game& game, Scan scan) {
  Targets targets = rarestNumbers(playerCounts(game));
  findBannedNumber(game, targets);
  for (const int target : targets) {
    const auto move = firstMove(scan, [&](int card) -> std::optional<Move> {
      if (!game.card(card).held) return std::nullopt;
      const Candidate candidate = candidateOf(game, card, target);
      for (const TargetRule& rule : targetRules) {
        if (rule.applies(candidate) && rule.sameNumberLoses == sameNumberWouldLose(game)) {
          return Move{card, rule.end};
        }
      }
      return std::nullopt;
    });
    if (move) return move;
  }
  return std::nullopt;
}

/// Rule D: a card for the end opposite the one that shows the banned number.
std::optional<Move> leaveBannedNumber(Game& game) {
  return firstMove(Scan::Upwards, [&](int card) -> std::optional<Move> {
    if (!game.card(card).held) return std::nullopt;
    const bool opposite = (fitsAt(game, card, End::RightTop) &&
                           game.chain.openNumber[End::LeftBottom] == game.mind.bannedNumber) ||
                          (fitsAt(game, card, End::LeftBottom) &&
                           game.chain.openNumber[End::RightTop] == game.mind.bannedNumber);
    if (!opposite || sameNumberWouldLose(game)) return std::nullopt;
    return Move{card, std::nullopt};
  });
}

bool isHeldDouble(const Card& card, int number) {
  return card.held && card.isDouble() && card.bears(number);
}

bool playerHoldsDouble(const Game& game, int number) {
  const auto hand = handOf(Side::Player);
  return std::any_of(hand.begin(), hand.end(),
                     [&](int slot) { return isHeldDouble(game.card(slot), number); });
}

/// The double that the player could lay next besides `danger`, among the numbers of this card.
void findSecondDanger(Game& game, const Card& examined) {
  for (const int slot : handOf(Side::Player)) {
    const Card& card = game.card(slot);
    const int number = card.upper;
    if (isHeldDouble(card, number) && examined.bears(number) && number != game.mind.danger) {
      game.mind.secondDanger = number;
    }
    // QUIRK-23: any card of the player's slots ends the search here, held or not, also by a number
    // left over from an earlier card. One would expect each search to start afresh; the computer
    // may then overlook a double.
    if (number == game.mind.secondDanger) return;
  }
}

/// Rule E for one card.
std::optional<Move> coverDanger(Game& game, int card) {
  if (!game.card(card).held) return std::nullopt;
  const Candidate v = candidateOf(game, card);
  if (v.isDouble()) {
    if (v.x == v.first) return Move{card, End::RightTop};
    if (v.x == v.second) return Move{card, End::LeftBottom};
    return std::nullopt;
  }
  if (!game.card(card).bears(game.mind.danger)) return std::nullopt;
  findSecondDanger(game, game.card(card));
  if (!v.coversWithoutOpening(game.mind.secondDanger) || sameNumberWouldLose(game))
    return std::nullopt;
  return Move{card, std::nullopt};
}

/// Rule E: the computer's highest double that fits, or a card that covers the end which fits a
/// double of the player's (`danger`).
std::optional<Move> layDoubleOrCoverDanger(Game& game) {
  game.mind.danger = noNumber;
  game.mind.secondDanger = noNumber;
  for (int n = 6; n >= 0; --n) {
    const bool open = isOpen(game, n);
    const auto move = firstMove(Scan::Upwards, [&](int card) -> std::optional<Move> {
      if (open && playerHoldsDouble(game, n)) game.mind.danger = n;
      if (!game.card(card).bears(n)) return std::nullopt;
      return coverDanger(game, card);
    });
    if (move) return move;
  }
  return std::nullopt;
}

/// Rule F: the first card that fits without opening the danger, a double of the player's.
/// QUIRK-45: which is but one number, met from 6 down. The first card that will do at 6 is laid, so
/// the 6-6 alone is guarded against, and other doubles only where every card that fits opens a 6.
std::optional<Move> openNoDanger(Game& game) {
  game.mind.danger = noNumber;
  for (int n = 6; n >= 0; --n) {
    const auto move = firstMove(Scan::Upwards, [&](int card) -> std::optional<Move> {
      if (game.card(card).bears(n) && playerHoldsDouble(game, n)) game.mind.danger = n;
      const bool safe =
          game.card(card).held && candidateOf(game, card).coversWithoutOpening(game.mind.danger);
      if (!safe || sameNumberWouldLose(game)) return std::nullopt;
      return Move{card, std::nullopt};
    });
    if (move) return move;
  }
  return std::nullopt;
}

std::optional<Move> chooseTactically(Game& game, Scan scan) {
  if (const auto move = aimAtTargets(game, scan)) return move;
  if (const auto move = leaveBannedNumber(game)) return move;
  if (const auto move = layDoubleOrCoverDanger(game)) return move;
  return openNoDanger(game);
}

/// Rule G. QUIRK-09: the scan goes on after a card, so one turn lays every card that fits when it
/// is met. One would expect one card a turn.
void layWhateverFits(const Game& game, Scan scan, const Lay& lay) {
  for (const int card : scanned(Side::Computer, scan)) {
    if (game.card(card).held && fits(game, card)) lay({card, std::nullopt});
  }
}

}  // namespace

Scan scanFor(double draw) {
  // Single precision decides what still counts as one half; exactly one half scans downwards.
  const auto r = static_cast<float>(2 * draw);
  return r > 1 ? Scan::Upwards : Scan::Downwards;
}

std::array<int, handSize> scanned(Side side, Scan scan) {
  std::array<int, handSize> slots{};
  const auto hand = handOf(side);
  std::copy(hand.begin(), hand.end(), slots.begin());
  if (scan == Scan::Downwards) std::reverse(slots.begin(), slots.end());
  return slots;
}

void moveForComputer(Game& game, Scan scan, const Lay& lay) {
  const auto move = game.levels.computer == 2 ? chooseTactically(game, scan) : std::nullopt;
  game.mind.lookedAt = move ? move->card : scanned(Side::Computer, scan).back();
  if (move) {
    lay(*move);
  } else {
    layWhateverFits(game, scan, lay);
  }
}

}  // namespace mevracard
