#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "script/names.h"

namespace mevracard::script {

/// The names of a part's properties and their values, as a script shows them.
using Properties = std::vector<std::pair<std::string_view, std::string>>;

[[nodiscard]] Properties propertiesOf(const Control& control);
[[nodiscard]] Properties propertiesOf(const MenuEntry& entry);
[[nodiscard]] Properties propertiesOf(const Form& form);

/// The value of "kiri.caption", "pl2.checked", "mevraku.width". Throws ScriptError if there is no
/// such part or it has no such property.
[[nodiscard]] std::string propertyText(const Names& names, std::string_view name);

}  // namespace mevracard::script
