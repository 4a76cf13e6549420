#pragma once

#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <optional>
#include <string>
#include <string_view>

#include "app/program.h"
#include "platform/qt/qt_desktop.h"
#include "platform/seeded_random.h"
#include "script/names.h"

namespace mevracard {

/// The real desktop with the same draws in every run, so that the computer plays the same moves.
class SteadyDesktop final : public QtDesktop {
 public:
  explicit SteadyDesktop(const QString& dataDir) : QtDesktop(dataDir, {}) {}
  void seedRandom(double /*seed*/) override { random_.seed(1); }
  [[nodiscard]] double random() override { return random_.next(); }

 private:
  SeededRandom random_;
};

/// A game in its real window, played with clicks and keys that enter where the system's own do.
/// Parts of the windows go by the names that scripts use. Message boxes are closed with Enter.
class Stage {
 public:
  /// `settings` is the line of the settings file.
  explicit Stage(const std::string& settings);

  /// Every later deal lays out this deck.
  void stack(const Deck& deck) { program_.window().stackedDeck = deck; }
  void start();
  void menu(std::string_view name);
  void click(std::string_view name) { press(name, 1); }
  void doubleClick(std::string_view name) { press(name, 2); }
  /// "Enter", "Space", "Esc" or a character.
  void key(std::string_view name);
  /// Lets the game go on for this time, in milliseconds.
  static void wait(int time);
  /// Saves what the screen shows as NAME.png in the working folder.
  static void shoot(const QString& name);
  /// The same, of what lies around and between the centres of two controls.
  void shootBetween(const QString& name, std::string_view from, std::string_view to, int margin);
  /// The next message box is shot before it is closed.
  void shootNextBox(const QString& name) { boxName_ = name; }
  /// What a label says.
  [[nodiscard]] std::string caption(std::string_view name) const;

 private:
  void press(std::string_view name, int times);
  void closeMessageBox();
  [[nodiscard]] QPoint centreOf(std::string_view name) const;

  QTemporaryDir home_;
  SteadyDesktop desktop_;
  Program program_;
  script::Names names_;
  QTimer closer_;
  QString boxName_;
};

}  // namespace mevracard
