#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "game/deal.h"
#include "game/game.h"
#include "platform/desktop.h"
#include "ui/about_window.h"
#include "ui/controls.h"
#include "ui/news.h"
#include "ui/statistics_window.h"
#include "ui/table_state.h"

namespace mevracard {

/// The main window with all its controls, the one game, what the player is told of it, the other
/// two windows and the desktop they are shown on.
struct MainWindow {
  explicit MainWindow(Desktop& desktop);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;

  Desktop& desktop;
  Game game;
  TableState state;
  std::optional<Deck> stackedDeck;  ///< dealt instead of a shuffled one, to set up a situation

  Form form;
  MenuEntries menu;
  Timer timer;
  TableControls table;
  std::array<CardControls, cardCount> cards;
  Label status;
  Button discard;  ///< never seen; takes the keys of the player's turn
  Choice choice;
  Result result;
  Tutorial tutorial;
  SizePanel sizePanel;

  const Form* answerDueIn = nullptr;  ///< the player acted there, and is to hear something

  AboutWindow about;  ///< also the window of the tips
  StatisticsWindow statistics;

  /// The card of a slot, 0 to 27; anything else is a std::out_of_range.
  [[nodiscard]] CardControls& card(int slot) { return cards.at(static_cast<std::size_t>(slot)); }
  /// The factor between design twips and the table in force.
  [[nodiscard]] double scale() const;

  /// Copies the state into what shows it, settles the focus and presents the windows.
  void present();
  /// The same without the desktop: what `present` would show.
  void refresh();
  /// Presents, then shows a message box with this text and waits for its OK.
  void say(std::string_view text);
  /// Presents, then tells the player of an error.
  void report(std::string_view text);

 private:
  /// What was put into words so far.
  struct Heard {
    News news;
    bool aside = false;  ///< another window is open
    std::string about, statistics;
  };

  /// Presents what a message box will stand before.
  void presentBeforeBox();
  /// What no other window shall hide, the weightiest first.
  [[nodiscard]] std::vector<KeptClear> whatMatters() const;
  /// Puts into words what the windows show, and what has happened since the last time.
  void speak();
  /// The same, but a message box is heard next: what has happened is told when it is closed.
  void speakBeforeBox();
  void speakOfTable();
  void speakOfGame();
  void speakOfAbout();
  void speakOfStatistics();
  /// What a small window says, or `again` if that has been heard and the player asks.
  void speakBeside(Form& window, std::string& known, const std::string& words,
                   const std::string& again) const;
  /// Gives every control its design place, look and depth, back to front.
  void designControls();
  /// Gives the menu entries their captions and builds the menu tree.
  void designMenu();

  Heard heard;
};

}  // namespace mevracard
