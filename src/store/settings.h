#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mevracard {

inline constexpr std::string_view settingsFile = "wdx.sys";
inline constexpr std::string_view defaultSettingsLine = "1/1/99";

/// The two levels as they are written to the settings file: "1" or "2", empty until a file was
/// read or a level chosen.
struct LevelFields {
  std::string player, computer;
};

/// What a settings file says. Levels are 1 or 2.
struct SavedSettings {
  int playerLevel = 1, computerLevel = 1;
  int screenValue = 99;
};

/// The line of a settings file: the fields with "/" between them and the line end.
[[nodiscard]] std::string settingsText(const LevelFields& levels, int screenValue);

/// Reads a settings file by character position. Empty if its screen value is none that the screen
/// size control takes (70 to 99).
[[nodiscard]] std::optional<SavedSettings> parseSettings(std::string_view text);

}  // namespace mevracard
