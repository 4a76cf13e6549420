#pragma once

#include <string>

#include "ui/table_state.h"

/// What the player is told of the situation, and may do in it, in words.
namespace mevracard {

/// "Your Turn. "
[[nodiscard]] std::string turnWords(const TableState& state);

/// How things stand in one sentence.
[[nodiscard]] std::string standing(const Game& game, const TableState& state);

/// "0-5, fits both ends. Mevra 5 or Mevra 0? Type the number, or Escape. "
[[nodiscard]] std::string choiceWords(const Game& game, const TableState& state);

/// The player's pass, which waits for OK.
[[nodiscard]] std::string passWords(const TableState& state);

/// The card of the demonstrated move: "Shown: 3-5. Its 5 fits the 5 at Right/Top. "
[[nodiscard]] std::string shownCard(const Game& game, int slot);

[[nodiscard]] std::string tutorialBegins();
[[nodiscard]] std::string tutorialEnds();

/// How to leave a window beside the main one.
[[nodiscard]] std::string closingWords();

/// The screen-size panel that has opened.
[[nodiscard]] std::string panelWords(const TableState& state);

/// "DEADLOCK! No card fits on either side. You Have: 20. Computer Has: 30. You win. "
[[nodiscard]] std::string resultWords(const Game& game);

/// What a key is to be pressed for now.
[[nodiscard]] std::string prompt(const Game& game, const TableState& state);

}  // namespace mevracard
