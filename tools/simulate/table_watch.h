#pragma once

#include "simulate/chain_log.h"

namespace mevracard::simulate {

/// What a run has met, to show that it was worth running.
struct Met {
  int games = 0;    ///< played to their end
  int choices = 0;  ///< same-number choices opened
  int passes = 0;   ///< of the player's
};

/// Holds the table after every event against what must always be true.
class TableWatch {
 public:
  /// What it meets is added to `met`.
  TableWatch(const MainWindow& w, Met& met) : w_(w), met_(met) {}

  /// To be called after every event. Null, or what does not hold.
  [[nodiscard]] const char* complaint();

 private:
  const char* aboutChain();
  [[nodiscard]] const char* aboutCards() const;
  [[nodiscard]] const char* aboutTurn() const;
  void meet();

  const MainWindow& w_;
  ChainLog chain_;
  PerEnd<int> open_;                    ///< the number that the last card of each end opened
  PerEnd<std::optional<int>> endCard_;  ///< that card
  int surplus_ = 0;                     ///< cards of the computer that its count has missed
  Met& met_;
  // As they stood after the event before.
  bool over_ = false, asked_ = false, passed_ = false;
  bool replyWasDue_ = false;
};

}  // namespace mevracard::simulate
