#pragma once

#include <string>
#include <vector>

#include "script/session.h"

namespace mevracard::script {

/// All that a script can ask for, a line for each field, window, menu entry and control, and what
/// the main window shows of them at two sizes.
[[nodiscard]] std::vector<std::string> overview(Session& session);

/// All that in four hexadecimal digits, with the glides since the last time.
[[nodiscard]] std::string digest(Session& session);

}  // namespace mevracard::script
