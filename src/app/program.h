#pragma once

#include <functional>

#include "ui/main_window.h"

namespace mevracard {

/// The game as a desktop drives it: every event goes in through `handle`.
class Program {
 public:
  /// Attaches the windows to the desktop, which must outlive the program. Nothing is shown yet.
  explicit Program(Desktop& desktop);

  /// Loads and shows the main window, deals and lays the 0-0. The data files are there when it
  /// returns; that they cannot be made is reported to the player.
  void start();
  /// Runs the handler of an event, then presents. An error in a handler is reported to the player
  /// and the game goes on; nothing is thrown.
  void handle(const Event& event);

  [[nodiscard]] MainWindow& window() { return window_; }

 private:
  void run(const std::function<void()>& doing);

  MainWindow window_;
};

}  // namespace mevracard
