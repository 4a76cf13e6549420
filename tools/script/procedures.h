#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "ui/main_window.h"

namespace mevracard::script {

/// Runs a procedure of the game and gives its result in words, if it has one.
using Procedure = std::function<std::optional<std::string>(MainWindow& w)>;

/// The procedure of this name, with these arguments. Throws ScriptError if there is none or it does
/// not take them.
[[nodiscard]] Procedure procedureNamed(std::string_view name,
                                       std::span<const std::string_view> arguments);

}  // namespace mevracard::script
