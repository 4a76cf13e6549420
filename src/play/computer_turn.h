#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// The computer's whole turn: passes, or lays a card by the rules of its level, then looks whether
/// the player can answer.
void takeComputersTurn(MainWindow& w);

}  // namespace mevracard
