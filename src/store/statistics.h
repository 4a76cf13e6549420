#pragma once

#include <string>
#include <string_view>

#include "game/game.h"

/// The statistics, games won and lost, as the text of their file. Any text is accepted: what is
/// missing or no code counts as nothing.
namespace mevracard {

inline constexpr std::string_view statisticsFile = "sys32rtn.dat";

/// Games and percentages, the latter truncated to whole numbers; 0 without games.
struct Statistics {
  int won = 0, lost = 0;
  int wonPercent = 0, lostPercent = 0;
};
[[nodiscard]] Statistics statisticsOf(std::string_view fileText);

/// 999 games are counted: the next result begins anew (QUIRK-28).
[[nodiscard]] bool countsAreFull(std::string_view fileText);

// New texts of the file. What stands behind the counts is kept.
/// With one more game, won or lost.
[[nodiscard]] std::string withResult(std::string_view fileText, GameResult result);
/// Without games.
[[nodiscard]] std::string withoutResults(std::string_view fileText);
/// The file of a new installation.
[[nodiscard]] std::string emptyStatisticsText();

}  // namespace mevracard
