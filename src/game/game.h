#pragma once

#include <optional>
#include <vector>

#include "game/cards.h"

/// What the rules speak of, as plain data: one game, in parts. What the player is asked, told and
/// shown is `ui/table_state.h`.
///
/// Which cards lie on the table is said by `Card::held` alone; the chain counts the cards of each
/// end, and `SideCounts` has the numbers that players see, of which the computer's may be too high.
namespace mevracard {

constexpr int noNumber = 7;  ///< of the numbers in `Mind`: none

/// A card on the table, and the end at which it joined the chain.
struct LaidCard {
  int slot = 0;
  End end = End::RightTop;  ///< of the opening's 0-0 it means nothing
};

/// What lies on the table. An empty optional holds nothing yet.
struct Chain {
  PerEnd<int> openNumber;              ///< to which the next card must fit
  PerEnd<std::optional<int>> endCard;  ///< slot of the card that lies at an end
  PerEnd<int> laidAt;                  ///< cards laid at an end, the 0-0 not counted
  int openings = 0;                    ///< laid in this game
  std::vector<LaidCard> laid;          ///< in order
};

/// What players see counted.
struct SideCounts {
  PerSide<int> cardsLeft{{handSize, handSize}};  ///< QUIRK-09: one less for each turn
  PerSide<int> passes;
};

/// For the player.
enum class GameResult { None, Won, Lost };

/// How the game ended.
struct Ending {
  bool over = false;
  GameResult result = GameResult::None;  ///< of the last game that ended
  bool deadlock = false;                 ///< neither side could move, and that decided it
};

struct Levels {
  int player = 1;    ///< 1: the computer's cards face up; 2: face down
  int computer = 1;  ///< 1: plain; 2: tactical
};

/// The two levels as the settings file holds them, 1 or 2; empty until a file was read.
struct SavedLevels {
  std::optional<int> player, computer;
};

/// What the tactical computer has in mind; noNumber for none.
struct Mind {
  bool hasPassed = false;       ///< in this game
  int bannedNumber = noNumber;  ///< nearly used up: five non-doubles on the table, one held
  int danger = noNumber;        ///< of a double with which the player could answer
  int secondDanger = noNumber;  ///< of another one
  std::optional<int> lookedAt;  ///< the last card of its hand that it has considered
};

struct Game {
  std::array<Card, cardCount> cards;
  Chain chain;
  PerSide<bool> aimsLeftBottom;  ///< the side's next card is to go to that end
  SideCounts counts;
  Ending ending;
  Levels levels;
  Mind mind;
  double dealSeed = 0;

  /// The card of a slot, 0 to 27; anything else is a std::out_of_range.
  [[nodiscard]] Card& card(int slot) { return cards.at(static_cast<std::size_t>(slot)); }
  [[nodiscard]] const Card& card(int slot) const {
    return cards.at(static_cast<std::size_t>(slot));
  }
};

}  // namespace mevracard
