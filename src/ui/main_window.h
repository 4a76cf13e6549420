#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "game/deal.h"
#include "game/state.h"
#include "platform/desktop.h"
#include "platform/form.h"
#include "store/settings.h"
#include "ui/about_window.h"
#include "ui/statistics_window.h"

namespace mevracard {

template <typename T>
using PerCard = std::array<T, cardCount>;

/// The main window with all its controls, the one game state, the other two windows and the desktop
/// they are shown on. Controls keep the program's own names.
struct MainWindow {
  explicit MainWindow(Desktop& desktop);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;

  Desktop& desktop;
  GameState state;
  LevelFields levels;               ///< as written to the settings file
  std::optional<Deck> stackedDeck;  ///< dealt instead of a shuffled one, to set up a situation

  Form form;
  AboutWindow authormevra;
  StatisticsWindow kalahmenang;
  Timer jam;

  // The table
  std::array<Line, 4> Line2;  ///< border
  std::array<Line, 2> linec;  ///< guide lines
  std::array<Line, 2> Line3;
  Shape kjumlah;                ///< centre square
  std::array<Shape, 2> hubung;  ///< turn markers
  std::array<Shape, 2> kotak;
  std::array<Label, 2> Label7;  ///< captions of the hands
  std::array<Label, 4> Label1;  ///< headings of the counters
  std::array<Label, 4> sisa;    ///< the counters

  // The cards
  PerCard<Frame> k;
  PerCard<Label> a, b;
  PerCard<Line> ln;
  PerCard<Shape> luar1, luar2;
  PerCard<Line> luar3;
  PerCard<Shape> luar4, luar5, luar6;

  // Status line, Discard button, same-number choice, end of game
  Label tanda;
  Button mulai;
  Button hilang;  ///< holds the focus during the same-number choice
  Button kanan, kiri, canc;
  Line panah1, panah2, panah3;
  std::array<Label, 6> akhir;

  // Tutorial and screen-size panel
  Label lblHow, gttip;
  Button cmdHow, cmdCL;
  Label ScreenControl, gambarscr, MinMax;
  ScrollBar scrctrl;
  Button cmdscreen;
  std::array<Shape, 3> mntBox;  ///< `mnt1`, `mnt2`, `mnt6`
  std::array<Line, 8> mntLine;  ///< `mnt3` to `mnt5`, `mnt7` to `mnt11`

  // Menu
  MenuEntry file, plevel, pl1, pl2, clevel, cl1, cl2, rg, stat, exit;
  MenuEntry help, author, tips, go, rufoxx, scr, how;

  /// The factor between design twips and the table in force.
  [[nodiscard]] double scaleFactor() const;
  /// Copies the state into the captions that show it, settles the focus and presents the windows.
  void present();
  /// The same without the desktop: what `present` would show.
  void refresh();
  /// Presents, then shows a message box with this text and waits for its OK.
  void say(std::string_view text);
  /// Presents, then tells the player of an error.
  void report(std::string_view text);
  /// Writes the status line.
  void showStatus(std::string_view text);
  /// The same, with ". Click Next" appended during the tutorial.
  void showTurn(std::string_view text);

 private:
  /// Gives every control its design place, look and depth, back to front.
  void designControls();
  /// Gives the menu entries their captions and builds the menu tree.
  void designMenu();
};

inline constexpr std::string_view yourTurn = "Your Turn";
inline constexpr std::string_view computersTurn = "Computer's Turn";

}  // namespace mevracard
