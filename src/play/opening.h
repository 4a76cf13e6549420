#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// Lays the 0-0 in the centre for whoever holds it, says whose turn it is and tells who moves next.
Side openWithDoubleZero(MainWindow& w);

}  // namespace mevracard
