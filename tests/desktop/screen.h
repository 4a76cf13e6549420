#pragma once

#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/program.h"
#include "platform/qt/qt_desktop.h"
#include "platform/seeded_random.h"

namespace mevracard {

/// The real desktop with draws of the test's own: the deal's seed does not enter, so every run
/// plays the same game.
class SteadyDesktop final : public QtDesktop {
 public:
  SteadyDesktop(const QString& dataDir, int seed);
  void seedRandom(double /*seed*/) override {}
  [[nodiscard]] double random() override { return random_.next(); }

 private:
  SeededRandom random_;
};

/// A running game in its real window, played with the X server's own mouse and keyboard. Message
/// boxes are closed with Enter, their texts kept in `messages`.
class Screen {
 public:
  explicit Screen(int seed = 1, const char* settings = "1/1/99\r\n");

  [[nodiscard]] MainWindow& window() { return program_.window(); }
  [[nodiscard]] const QtDesktop& desktop() const { return desktop_; }
  [[nodiscard]] GameState& state() { return window().state; }
  /// The widget of a button, a scroll bar or a text.
  [[nodiscard]] QWidget& widget(const Control& control) const;
  /// Where a control is painted on the screen; none if it is not to be seen.
  [[nodiscard]] std::optional<QRect> painted(const Control& control) const;
  /// Where a control stands on the screen.
  [[nodiscard]] QRect place(const Box& control) const;
  [[nodiscard]] QWidget& mainWidget() const;

  void start();
  void click(const Box& control);
  void doubleClick(const Box& control);
  /// A key by its X name ("p", "Return", "alt+f").
  void key(const std::string& name);
  /// Any command of the X test tool, without waiting for what it brings about.
  void tool(const QStringList& arguments);
  /// Lets the program run until this holds; false after `patience` ms.
  bool waitFor(const std::function<bool()>& condition, int patience = 5000);
  void settle(int milliseconds);
  /// Saves what the screen shows as NAME.png in the working folder.
  void shoot(const std::string& name);
  /// The text of the X server's answer where the pointer is.
  [[nodiscard]] static QPoint pointer();

  std::vector<std::string> messages;
  bool answersBoxes = true;

 private:
  void closeMessageBox();

  QTemporaryDir home_;
  SteadyDesktop desktop_;
  Program program_;
  QTimer closer_;
};

}  // namespace mevracard
