#pragma once

#include <array>

#include "game/cards.h"
#include "platform/form.h"

/// The controls of the main window that belong together.
namespace mevracard {

/// The drawing on a card's back: a flower.
struct CardBack {
  Shape ground, leaf;
  Line stem;
  Shape lowerPetal, leftPetal, heart;

  /// From back to front.
  [[nodiscard]] std::array<Control*, 6> parts();
};

/// One card: its frame, and in the frame the face with two numbers and the back over it.
struct CardControls {
  Frame frame;
  Label upper, lower;
  Line divider;
  CardBack back;

  /// The colour behind both numbers.
  void paintNumbers(Color color);
  /// Shows the back, which stands in front of the face, or takes it away.
  void cover();
  void uncover();
};

/// A count, and what stands over or under it.
struct Counter {
  Label heading, count;
};

/// What lies under and around the cards.
struct TableControls {
  // On no window themselves:
  Shape whole;                         ///< the area that table and hands take up
  Shape panels;                        ///< has the upper left corner of the panels
  std::array<Shape, 2> captionSpares;  ///< of `handCaptions`, beyond the counters

  std::array<Line, 4> border;
  std::array<Line, 2> leftGuides, rightGuides;
  Shape centre;                  ///< the square of the 0-0
  std::array<Shape, 2> boxes;    ///< one that never shows, and the one where the markers are parked
  std::array<Shape, 2> markers;  ///< of the chain's turns
  std::array<Label, 2> handCaptions;
  PerSide<Counter> cardsLeft, passes;
};

/// The same-number choice.
struct Choice {
  Button keys;  ///< never seen; holds the focus while the choice is open
  Button leftBottom, rightTop, cancel;
  std::array<Line, 3> arrows;  ///< from the status line to the buttons

  void show(bool open);
};

/// The end of a game.
struct Result {
  Label deadlock;  ///< "DEADLOCK!"
  Label youHave, computerHas;
  Label yourSum, computersSum;
  Label verdict;  ///< who won

  [[nodiscard]] std::array<Label*, 6> labels();
  /// Sums and verdict; `deadlock` follows the state.
  void show(bool ended);
};

/// The how-to-play tutorial.
struct Tutorial {
  Label instruction, hint;
  Button next, stop;

  void show(bool running);
};

/// The panel "SCREEN CONTROL".
struct SizePanel {
  Label heading, ground, limits;
  ScrollBar bar;
  Button ok;
  std::array<Shape, 3> monitorBoxes;  ///< the monitor's screen, its case, a smaller screen
  std::array<Line, 8> monitorLines;   ///< its foot and a pointer

  void show(bool open);
};

/// The menu bar: File, Help, ScreenOption, HowToPlay.
struct MenuEntries {
  MenuEntry file, playerLevel, playerLevel1, playerLevel2, computerLevel, computerLevel1,
      computerLevel2, newGame, statistics, exit;
  MenuEntry help, about, tips, homepage, helpTableSize;
  MenuEntry tableSize, howToPlay;
};

}  // namespace mevracard
