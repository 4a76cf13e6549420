#pragma once

#include <string>

#include "game/game.h"
#include "game/grid.h"
#include "platform/desktop.h"

/// What the player is asked, told and shown, as plain data. What the rules speak of is
/// `game/game.h`.
namespace mevracard {

constexpr int noSelection = 15;  ///< `selectedCard`: none; never a slot of the player's

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

/// The how-to-play tutorial.
struct TutorialState {
  bool running = false;
  bool untilFirstCard = false;        ///< from its start to its first demonstrated card
  bool computerWaitsForNext = false;  ///< the timer lets no move of the computer's through
  bool nextIsComputers = false;       ///< NEXT lets the computer move, else it demonstrates a move
};

/// The demonstrated move: the pointer goes from `start` to `start + offset`, then the card is laid.
/// Both count in pixels of 15 twips.
struct DemonstratedMove {
  bool busy = false;  ///< a move is being shown
  bool done = false;  ///< set by the opening, until a move is begun
  int card = 0;       ///< to be laid
  int tick = 0;       ///< ticks of the pointer's way
  ScreenPoint start, offset;
};

/// A card that a side wanted to lay. Discard leaves its `laid` behind as false, and the opening as
/// whether the player held the 0-0: scripts read it so, and nothing else does.
struct Offer {
  int card = 0;
  bool laid = false;
};

struct TableState {
  // The move at hand.
  Offer lastOffer;
  int layPosition = 0;  ///< grid place of the card just laid; a deal keeps it
  int layColumn = 0;
  int selectedCard = 0;  ///< the player's selection, noSelection for none
  int refusals = 0;      ///< cards that the player wanted to lay and could not

  // What the player is asked and told.
  bool takesCards = false;     ///< from a game's start to its end; a new table size gives it back
  bool choiceOpen = false;     ///< the same-number choice waits for an answer
  int choiceCard = 0;          ///< that it is about
  bool passAwaitsOk = false;   ///< the player's pass was announced and waits for its OK
  bool sizePanelOpen = false;  ///< the size panel is on the table
  Announcement announcement = Announcement::None;
  std::string tipText = "0";  ///< the current situation tip, lines end with a carriage return

  TutorialState tutorial;
  DemonstratedMove demo;

  SavedLevels savedLevels;
  bool newGameAsked = false;  ///< since the start; the first deal sizes the table
  int screenHeight = 0;       ///< twips
  int twipsPerPixel = 15;
  int tableSize = designTableSize;  ///< in force
};

}  // namespace mevracard
