#pragma once

#include <optional>
#include <string>

#include "ui/table_state.h"

namespace mevracard {

/// What has happened in the game since it was last told, in words.
class News {
 public:
  /// After every event, whether it is told now or later.
  void note(const Game& game, const TableState& state, bool playerActed);
  /// The player is to hear how things stand, even if nothing has happened.
  void oweAnswer() { answerIsDue_ = true; }

  /// All that was not told yet; empty if nothing was.
  [[nodiscard]] std::string tell(const Game& game, const TableState& state);

 private:
  /// What the player knows.
  struct Told {
    bool hands = false;
    int laid = 0;
    int computersPasses = 0;
    Announcement announcement = Announcement::None;
    std::optional<int> choice, shown;  ///< the card asked about, the card demonstrated
    std::optional<int> size;           ///< in the open panel
    bool pass = false;
    bool over = false;
    bool tutorial = false;
  };

  [[nodiscard]] static Told all(const Game& game, const TableState& state);
  void startAnew();
  void noteMoves(const Game& game);
  [[nodiscard]] std::string selection(const Game& game, const TableState& state) const;
  [[nodiscard]] std::string ending(const Game& game) const;
  [[nodiscard]] std::string situation(const Game& game, const TableState& state,
                                      const Told& now) const;

  Told told_;
  std::string moves_;  ///< not told yet
  bool laid_ = false;  ///< cards, among the moves
  int refusals_ = 0;
  int selected_ = noSelection;
  bool picked_ = false;  ///< the player has moved the selection
  bool answerIsDue_ = false;
};

}  // namespace mevracard
