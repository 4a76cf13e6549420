#pragma once

#include "platform/speech.h"

namespace mevracard {

struct MainWindow;

/// Hands, table and score of the state: what a player can go through without looking.
[[nodiscard]] std::vector<SpokenList> spokenLists(MainWindow& w);

}  // namespace mevracard
