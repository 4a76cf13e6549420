#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// A tick of the timer: the computer's reply, or a step of the tutorial's demonstration.
void tick(MainWindow& w);

}  // namespace mevracard
