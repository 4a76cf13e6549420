#pragma once

#include "app/program.h"
#include "platform/headless/headless_desktop.h"
#include "simulate/request.h"

namespace mevracard::simulate {

/// A started program in a world of its own, with the computer's level of the request, and a player
/// of its style. Neither other tables nor the wall clock enter: everything random comes from the
/// seed.
class Table {
 public:
  Table(const Request& request, std::uint64_t seed);

  [[nodiscard]] MainWindow& window() { return program_.window(); }
  [[nodiscard]] bool computerIsToMove() { return window().timer.enabled; }
  /// The one thing to do next: an event of the player's or a tick. Throws std::logic_error if it is
  /// refused or there is none. Nothing is left to do once the game is over.
  void goOn();

 private:
  Attempt next();

  Style style_;
  RandomStream random_;
  HeadlessDesktop desktop_;
  Program program_;
};

}  // namespace mevracard::simulate
