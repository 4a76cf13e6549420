#pragma once

#include "ui/colors.h"
#include "ui/main_window.h"

namespace mevracard {

/// Draws the back of a card over its face, or takes it away. `card` is a slot, 0 to 27.
void coverCard(MainWindow& w, std::size_t card);
void uncoverCard(MainWindow& w, std::size_t card);
/// Uncovers the card that `playCard` names, whoever holds it.
void BukaCover(MainWindow& w);
/// At a deal: the computer's hand face up at player level 1, face down at level 2.
void coverComputersHand(MainWindow& w);

/// Paints both number labels of a card.
void paintNumbers(MainWindow& w, std::size_t card, Color color);

}  // namespace mevracard
