#pragma once

#include "ui/main_window.h"

namespace mevracard {

/// A double-click anywhere on a card (slot 0 to 27): lays a card of the player's at once, or opens
/// the same-number choice.
void doubleClickCard(MainWindow& w, int card);
/// The Discard button: lays the selected card.
void pressDiscard(MainWindow& w);
/// Enter or Space on the key button of the choice, which can hold the focus after the choice has
/// closed: nothing while it is open, else Discard.
void pressDiscardUnlessAsked(MainWindow& w);
/// A key that the control with the focus has no use for itself: 'p' selects the next card of the
/// hand, Enter and Space lay it, digits and Esc answer the choice.
void pressKey(MainWindow& w, const Control& focused, int key);

}  // namespace mevracard
