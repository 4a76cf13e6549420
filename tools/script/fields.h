#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/main_window.h"

/// The fields of the game state by the names that a script uses.
namespace mevracard::script {

/// `NAME = VALUE` for every field there is.
[[nodiscard]] std::vector<std::string> fieldLines(MainWindow& w);

/// The value of a field as a script shows it; empty if there is no such field.
[[nodiscard]] std::optional<std::string> fieldText(MainWindow& w, std::string_view name);

/// Writes a field as it stands, without a look at any other. `computerLevel` and `playerLevel`
/// check the menu entries of that level. Throws ScriptError if there is no such field or the value
/// is none that it can hold.
void setField(MainWindow& w, std::string_view name, std::string_view value);

}  // namespace mevracard::script
