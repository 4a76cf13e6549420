#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// A double-click anywhere on a card (slot 0 to 27): lays a card of the player's at once, or opens
/// the same-number choice.
void doubleClickCard(MainWindow& w, int card);
/// A key on the Discard button: 'p' selects the next card of the hand.
void pressKeyOnDiscard(MainWindow& w, int key);
/// The Discard button: lays the selected card.
void pressDiscard(MainWindow& w);

}  // namespace mevracard
