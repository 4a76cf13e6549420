#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// The computer cannot move but the player can: announces it and closes the computer's turn.
void announceComputersPass(MainWindow& w);

/// The player cannot move but the computer can: opens the tips with the pass tip and an OK button
/// and disables the main window until it is pressed.
void announcePlayersPass(MainWindow& w);
/// OK of the tips after a pass of the player: the computer moves again after 2000 ms.
void acknowledgePass(MainWindow& w);

/// Closes a turn of the computer and the pass of the player: ends the game if the computer's count
/// is 0, adds the general tip unless somebody must pass, and gives NEXT the keyboard.
void closeTurn(MainWindow& w);

}  // namespace mevracard
