#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "game/state.h"

/// The settings file: both levels and the screen size, as the text of one line ("1/1/99").
namespace mevracard {

inline constexpr std::string_view settingsFile = "wdx.sys";

/// What a settings file says.
struct SavedSettings {
  int playerLevel = 1, computerLevel = 1;
  int screenValue = 99;
};

/// The text of a settings file: level, level and screen size with "/" between them, and the line
/// end. An empty level leaves its field empty.
[[nodiscard]] std::string settingsText(const SavedLevels& levels, int screenValue);
/// The file of a new installation.
[[nodiscard]] std::string defaultSettingsText();

/// Reads a settings file by character position. Empty if its screen value is none that the screen
/// size control takes (70 to 99).
[[nodiscard]] std::optional<SavedSettings> parseSettings(std::string_view text);

}  // namespace mevracard
