#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Lays the 0-0 in the centre for whoever holds it and says whose turn it is.
void discard00(MainWindow& w);

}  // namespace mevracard
