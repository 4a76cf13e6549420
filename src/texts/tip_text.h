#pragma once

#include <string>

/// The sentences of the situation tips. Lines end with a single carriage return; sentences bring
/// their own leading blank.
namespace mevracard {

/// The heading and an empty line; every new tip begins with it.
[[nodiscard]] std::string tipHeading();

[[nodiscard]] std::string generalTip(int first, int second);
[[nodiscard]] std::string openingTip();
[[nodiscard]] std::string openingAnsweredTip();
[[nodiscard]] std::string sameNumberTip(int first, int second);
[[nodiscard]] std::string computerPassTip(int first, int second);
[[nodiscard]] std::string playerPassTip(int first, int second);
[[nodiscard]] std::string replayTip();
[[nodiscard]] std::string playerWinsTip();
[[nodiscard]] std::string computerWinsTip();
[[nodiscard]] std::string deadlockTip();
[[nodiscard]] std::string demonstratedTip(int upper, int lower);
[[nodiscard]] std::string computerMovedTip();

}  // namespace mevracard
