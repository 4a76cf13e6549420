#pragma once

#include <string>
#include <string_view>

#include "script/names.h"

namespace mevracard::script {

/// The value of "kiri.caption", "pl2.checked", "mevraku.width", as a script shows it. Throws
/// ScriptError if there is no such part or it has no such property.
[[nodiscard]] std::string propertyText(const Names& names, std::string_view name);

}  // namespace mevracard::script
