#pragma once

#include <array>
#include <optional>
#include <string>

namespace mevracard {

constexpr int cardCount = 28;
constexpr int handSize = 14;         ///< slots 0 to 13 are the player's, 14 to 27 the computer's
constexpr int noSelection = 15;      ///< `selectedCard`: none; never a slot of the player's
constexpr int noTacticalNumber = 7;  ///< `larangan`, `bahaya`, `bahaya2`: none
constexpr int designScreenValue = 100;

/// The two ends of the chain. End 0 grows up and right, end 1 down and left.
enum class End { RightTop = 0, LeftBottom = 1 };

/// The one record of a game. Numbers of cards are 0 to 6, flags 1 and 0. An empty optional is a
/// field that holds no number yet and reads as 0.
struct GameState {
  std::array<int, cardCount> a{}, b{};  ///< upper and lower number of each card
  std::array<int, cardCount> held{};    ///< 1 in its owner's hand, 0 on the table

  std::array<int, 2> kotak{};  ///< the active numbers: open number of each end
  std::optional<int> k0, k1;   ///< the card (slot) that lies at each end
  int lina = 0, linb = 0;      ///< cards laid at each end, the 0-0 not counted

  int kjumlah = 0;  ///< openings laid this game
  std::array<int, 4> sisa{14, 14, 0,
                          0};  ///< cards left: computer, player; passes: computer, player

  int moveMade = 0;     ///< the card last offered was laid; after the opening: computer to move
  int playCard = 0;     ///< slot of the card to lay
  int layPosition = 0;  ///< grid place of the card just laid; a deal keeps it
  int layColumn = 0;
  int leftEndChosen = 0;  ///< the player chose the Left/Bottom end
  int ngisor = 0;         ///< the computer's card is to go to the Left/Bottom end
  int selectedCard = 0;   ///< the player's selection, noSelection for none

  std::string tipText = "0";  ///< the current situation tip, lines end with a carriage return
  double dealSeed = 0;
  int theend = 0;                    ///< game over
  std::optional<int> firstDealDone;  ///< 1 once a new game was asked for; decides how a deal scales

  int screenHeight = 0;  ///< twips
  int twipsPerPixel = 15;
  int screenValue = designScreenValue;  ///< screen size in force, 70 to 99 but for the design value

  int computerPassed = 0;  ///< 1 once the computer has passed
  int larangan = noTacticalNumber;
  int bahaya = noTacticalNumber;
  int bahaya2 = noTacticalNumber;

  int tutorialActive = 0;  ///< the computer waits for NEXT
  int demoMove = 0;        ///< 0: NEXT demonstrates a move; 1: NEXT lets the computer move
  int demoTick = 0;        ///< ticks of the demonstration under way
  int demoDone = 0;
  int demoBusy = 0;       ///< a demonstrated move is under way
  int tutorialDeal = 0;   ///< from the tutorial's start to its first demonstrated card
  double n1 = 0, n2 = 0;  ///< the demonstration's way: offset to the target, 15-twip pixels
  double n3 = 0, n4 = 0;  ///< and its start

  /// Open number, count and end card of an end by its index.
  [[nodiscard]] int activeNumber(End e) const { return kotak[static_cast<std::size_t>(e)]; }
  [[nodiscard]] int& activeNumber(End e) { return kotak[static_cast<std::size_t>(e)]; }
  [[nodiscard]] int& laidAt(End e) { return e == End::RightTop ? lina : linb; }
  [[nodiscard]] std::optional<int>& endCard(End e) { return e == End::RightTop ? k0 : k1; }
};

}  // namespace mevracard
