#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "game/game.h"
#include "game/grid.h"

/// The settings file: both levels and the table size, as the text of one line ("1/1/99").
namespace mevracard {

inline constexpr std::string_view settingsFile = "wdx.sys";

/// What a settings file says.
struct SavedSettings {
  int playerLevel = 1, computerLevel = 1;
  int tableSize = largestTableSize;
};

/// The text of a settings file: level, level and table size with "/" between them, and the line
/// end. An empty level leaves its field empty.
[[nodiscard]] std::string settingsText(const SavedLevels& levels, int tableSize);
/// The file of a new installation.
[[nodiscard]] std::string defaultSettingsText();

/// Reads a settings file by character position. Empty if its table size is none that the
/// player can choose.
[[nodiscard]] std::optional<SavedSettings> parseSettings(std::string_view text);

}  // namespace mevracard
