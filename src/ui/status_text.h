#pragma once

#include <string>

#include "ui/table_state.h"

namespace mevracard {

/// What the status line says.
[[nodiscard]] std::string statusText(Announcement announcement, bool tutorialRuns);

}  // namespace mevracard
