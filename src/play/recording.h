#pragma once

#include "store/statistics.h"
#include "ui/main_window.h"

namespace mevracard {

// A statistics file that cannot be read or written ends either without a message.
/// Adds the result of a game to the statistics.
void recordResult(MainWindow& w, GameResult result);
/// Empties the statistics.
void forgetResults(MainWindow& w);

}  // namespace mevracard
