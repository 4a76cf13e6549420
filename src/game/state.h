#pragma once

#include <array>
#include <numeric>
#include <optional>
#include <span>
#include <string>

/// What a game consists of, as plain data.
namespace mevracard {

constexpr int cardCount = 28;
constexpr int handSize = 14;     ///< slots 0 to 13 are the player's, 14 to 27 the computer's
constexpr int noSelection = 15;  ///< `selectedCard`: none; never a slot of the player's
constexpr int noNumber = 7;      ///< `bannedNumber`, `danger`, `secondDanger`: none
constexpr int smallestTableSize = 70, largestTableSize = 99;  ///< what the player can choose
constexpr int designTableSize = 100;                          ///< until the settings are read

/// The two ends of the chain. Right/Top grows up and right, Left/Bottom down and left.
enum class End { RightTop, LeftBottom };
enum class Side { Computer, Player };

/// One value for each end, or for each side.
template <typename Key, typename Value>
struct PerKey {
  std::array<Value, 2> values{};

  [[nodiscard]] Value& operator[](Key key) { return values[static_cast<std::size_t>(key)]; }
  [[nodiscard]] const Value& operator[](Key key) const {
    return values[static_cast<std::size_t>(key)];
  }
  bool operator==(const PerKey&) const = default;
};
template <typename Value>
using PerEnd = PerKey<End, Value>;
template <typename Value>
using PerSide = PerKey<Side, Value>;

/// The slots of the cards in rising order.
inline constexpr auto allSlots = [] {
  std::array<int, cardCount> all{};
  std::iota(all.begin(), all.end(), 0);
  return all;
}();

/// The slots that a side's cards keep for the whole game.
[[nodiscard]] constexpr std::span<const int, handSize> handOf(Side side) {
  constexpr std::span all(allSlots);
  return side == Side::Player ? all.first<handSize>() : all.last<handSize>();
}
[[nodiscard]] constexpr Side ownerOf(int slot) {
  return slot < handSize ? Side::Player : Side::Computer;
}

/// A card with its numbers, 0 to 6, as it lies: a card is turned when it is laid.
struct Card {
  int upper = 0, lower = 0;
  bool held = false;  ///< in its owner's hand, else on the table

  [[nodiscard]] bool bears(int number) const { return upper == number || lower == number; }
  [[nodiscard]] bool isDouble() const { return upper == lower; }
  [[nodiscard]] int sum() const { return upper + lower; }
};

/// A card on the table, and the end at which it joined the chain.
struct LaidCard {
  int slot = 0;
  End end = End::RightTop;  ///< of the opening's 0-0 it means nothing
};

/// What the status line last said.
enum class Announcement {
  None,
  YourTurn,
  ComputersTurn,
  ChooseOne,
  ComputerPasses,
  YouPass,
  ComputersTurnAgain,
};

/// For the player.
enum class GameResult { None, Won, Lost };

/// The two levels as the settings file holds them, 1 or 2; empty until a file was read.
struct SavedLevels {
  std::optional<int> player, computer;
};

/// The how-to-play tutorial.
struct TutorialState {
  bool running = false;
  bool untilFirstCard = false;        ///< from its start to its first demonstrated card
  bool computerWaitsForNext = false;  ///< the timer lets no move of the computer's through
  bool nextIsComputers = false;       ///< NEXT lets the computer move, else it demonstrates a move
};

/// A way in pixels of 15 twips.
struct PixelVector {
  double x = 0, y = 0;
};

/// The demonstrated move: the pointer goes from `start` to `start + offset`, then the card is laid.
struct Demonstration {
  bool busy = false;  ///< a move is being shown
  bool done = false;  ///< set by the opening, until a move is begun
  int tick = 0;       ///< ticks of the pointer's way
  PixelVector start, offset;
};

/// The one record of a game. An empty optional holds nothing yet.
struct GameState {
  // The cards and the chain.
  std::array<Card, cardCount> cards;
  PerEnd<int> openNumber;                ///< the active numbers
  PerEnd<std::optional<int>> endCard;    ///< slot of the card that lies at an end
  PerEnd<int> laidAt;                    ///< cards laid at an end, the 0-0 not counted
  int openings = 0;                      ///< laid in this game
  std::array<LaidCard, cardCount> laid;  ///< the first `laidCount`, in order
  int laidCount = 0;

  // The counts, and how the game ended.
  PerSide<int> cardsLeft{{handSize, handSize}};
  PerSide<int> passes;
  bool gameOver = false;
  GameResult result = GameResult::None;  ///< of the last game that ended
  bool deadlock = false;                 ///< neither side could move, and that decided it

  // The move at hand.
  int playCard = 0;          ///< slot of the card to lay, or under examination
  bool cardWasLaid = false;  ///< the card last offered; after the opening: the computer is to move
  int layPosition = 0;       ///< grid place of the card just laid; a deal keeps it
  int layColumn = 0;
  bool playerAimsLeftBottom = false;    ///< the player's card is to go to that end
  bool computerAimsLeftBottom = false;  ///< the computer's card is to go to that end
  int selectedCard = 0;                 ///< the player's selection, noSelection for none
  int refusals = 0;                     ///< cards that the player wanted to lay and could not

  // What the player is asked and told.
  bool takesCards = false;     ///< from a game's start to its end; a new table size gives it back
  bool choiceOpen = false;     ///< the same-number choice waits for an answer
  bool passAwaitsOk = false;   ///< the player's pass was announced and waits for its OK
  bool sizePanelOpen = false;  ///< the size panel is on the table
  Announcement announcement = Announcement::None;
  std::string tipText = "0";  ///< the current situation tip, lines end with a carriage return

  // What the tactical computer has in mind; noNumber for none.
  bool computerPassed = false;  ///< in this game
  int bannedNumber = noNumber;  ///< nearly used up: five non-doubles on the table, one held
  int danger = noNumber;        ///< of a double with which the player could answer
  int secondDanger = noNumber;  ///< of another one

  TutorialState tutorial;
  Demonstration demo;

  // The deal and the table.
  int playerLevel = 1;    ///< 1: the computer's cards face up; 2: face down
  int computerLevel = 1;  ///< 1: plain; 2: tactical
  SavedLevels savedLevels;
  double dealSeed = 0;
  bool newGameAsked = false;  ///< since the start; the first deal sizes the table
  int screenHeight = 0;       ///< twips
  int twipsPerPixel = 15;
  int tableSize = designTableSize;  ///< in force

  [[nodiscard]] std::span<const LaidCard> laidCards() const {
    return std::span(laid).first(static_cast<std::size_t>(laidCount));
  }
  /// The card of a slot, 0 to 27; anything else is a std::out_of_range.
  [[nodiscard]] Card& card(int slot) { return cards.at(static_cast<std::size_t>(slot)); }
  [[nodiscard]] const Card& card(int slot) const {
    return cards.at(static_cast<std::size_t>(slot));
  }
};

}  // namespace mevracard
