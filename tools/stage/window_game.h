#pragma once

#include <QTemporaryDir>
#include <QTimer>
#include <string>
#include <vector>

#include "app/program.h"
#include "platform/qt/qt_desktop.h"
#include "platform/seeded_random.h"

namespace mevracard {

/// The real desktop with the same draws in every deal, so that every run plays the same game.
class SteadyDesktop final : public QtDesktop {
 public:
  SteadyDesktop(const QString& dataDir, int seed)
      : QtDesktop(dataDir.toStdString(), {}), seed_(seed) {}
  void seedRandom(double /*seed*/) override { random_.seed(seed_); }
  [[nodiscard]] double random() override { return random_.next(); }

 private:
  int seed_;
  SeededRandom random_;
};

/// A game in its real window, with data files of its own. Message boxes are closed with Enter.
class WindowGame {
 public:
  /// `settings` is the line of the settings file.
  WindowGame(int seed, const std::string& settings);
  virtual ~WindowGame() = default;
  WindowGame(const WindowGame&) = delete;
  WindowGame& operator=(const WindowGame&) = delete;

  [[nodiscard]] MainWindow& window() { return program_.window(); }
  [[nodiscard]] const QtDesktop& desktop() const { return desktop_; }

  void start();
  /// Lets the game go on for this time, in milliseconds.
  static void wait(int time);
  /// Saves what the screen shows as NAME.png in the working folder.
  static void shoot(const QString& name);

  std::vector<std::string> messages;  ///< the texts of the boxes so far
  bool answersBoxes = true;

 protected:
  void handle(const Event& event) { program_.handle(event); }
  /// What the screen shows; where the platform keeps that to itself, what the windows show.
  [[nodiscard]] static QPixmap picture();
  static void save(const QPixmap& pixmap, const QString& name);
  /// A message box is there and about to be closed.
  virtual void beforeBoxCloses() {}

 private:
  void closeMessageBox();

  QTemporaryDir home_;
  SteadyDesktop desktop_;
  Program program_;
  QTimer closer_;
};

}  // namespace mevracard
