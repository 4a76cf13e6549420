#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// A tick of the timer: the computer's reply, or a step of a demonstrated move.
void tick(MainWindow& w);

}  // namespace mevracard
