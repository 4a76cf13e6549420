#pragma once

#include <string_view>

/// What the status line and the message boxes say.
namespace mevracard {

inline constexpr std::string_view yourTurnText = "Your Turn";
inline constexpr std::string_view computersTurnText = "Computer's Turn";
inline constexpr std::string_view clickNextText = ". Click Next";  ///< follows these two
inline constexpr std::string_view chooseOneText = "'Mevra!'   Choose One";
inline constexpr std::string_view computerPassesText = "Computer Passes!";
inline constexpr std::string_view youPassText = "You Pass!";
inline constexpr std::string_view waitAgainText = "Computer's turn again. Wait!";
inline constexpr std::string_view clickNextAgainText = "Computer's turn. Click Next";

inline constexpr std::string_view openingMessage = "Starting with discarding 0-0 card.";
inline constexpr std::string_view computerPassesMessage = "Computer Passes. It is now your turn.";
inline constexpr std::string_view abortMessage = "Aborting makes you lose this game";
inline constexpr std::string_view countsFullMessage =
    "No. of Game has reached 999. Reset to 0 again.";

}  // namespace mevracard
