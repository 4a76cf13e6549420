#pragma once

#include <optional>
#include <string>

#include "game/state.h"

namespace mevracard {

/// What has happened in the game since it was last told, in words.
class News {
 public:
  /// After every event, whether it is told now or later. An `answerIsDue` to whom asked, even if
  /// nothing has happened.
  void note(const GameState& s, bool answerIsDue);

  /// All that was not told yet; empty if nothing was.
  [[nodiscard]] std::string tell(const GameState& s);

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
    bool demonstration = false;
  };

  [[nodiscard]] static Told all(const GameState& s);
  [[nodiscard]] std::string moves(const GameState& s, const Told& now) const;
  [[nodiscard]] std::string selection(const GameState& s) const;
  [[nodiscard]] std::string ending(const GameState& s, const Told& now) const;
  [[nodiscard]] std::string situation(const GameState& s, const Told& now, bool moved) const;

  Told told_;
  int refusals_ = 0;
  int selected_ = noSelection;
  std::string refused_;  ///< the card that was, in words
  bool picked_ = false;  ///< the player has moved the selection
  bool answerIsDue_ = false;
};

}  // namespace mevracard
