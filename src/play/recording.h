#pragma once

#include "store/statistics.h"
#include "ui/main_window.h"

namespace mevracard {

/// Adds a result to the statistics file, or clears it. A file that cannot be read or written ends
/// it without a message.
void recordResult(MainWindow& w, RecordMode mode);

}  // namespace mevracard
