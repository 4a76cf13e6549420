#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// A tick of the timer: the computer's reply, or a step of the tutorial's demonstration.
void jam_Timer(MainWindow& w);

/// Moves the pointer to a place of the screen in pixels, rounded half to even.
void MoveMouse(MainWindow& w, float x, float y);

}  // namespace mevracard
