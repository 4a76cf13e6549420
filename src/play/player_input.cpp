#include "play/player_input.h"

#include "game/rules.h"
#include "platform/event.h"
#include "play/choice.h"
#include "play/choice_answers.h"
#include "play/ending.h"
#include "play/placement.h"
#include "play/size_panel.h"
#include "play/status.h"
#include "play/tips.h"
#include "texts/tip_text.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

/// During the tutorial the player's cards are played by NEXT alone; after the end by nobody, also
/// when a new table size has shown the Discard button again.
bool gameTakesCards(const MainWindow& w) {
  return w.state.takesCards && !w.game.ending.over && !w.state.tutorial.running;
}

/// A card on the table is never played again, so the choice is for held ones only.
bool offersChoice(const Game& game, int card) {
  return game.card(card).held && makesSameNumber(game, card);
}

/// What the player does at the table presses the panel's OK first.
void closePanelIfOpen(MainWindow& w) {
  if (!w.state.sizePanelOpen) return;
  try {
    closeSizePanel(w);
  } catch (const PlatformError& error) {
    w.report(error.what());
  }
}

/// QUIRK-39: a refused card keeps its red numbers although it is no longer selected. One would
/// expect them to go; the player may see two red cards after the next 'p'.
/// A reply that was due stays due, else a player who cannot move would wait for ever; the choice
/// must not go on with the refused card.
void refuseCard(MainWindow& w, bool replyWasDue) {
  ++w.state.refusals;
  if (replyWasDue) w.timer.goOn();
  if (!w.state.choiceOpen) return;
  closeChoice(w);
  announce(w, replyWasDue ? Announcement::ComputersTurn : Announcement::YourTurn);
}

/// QUIRK-36: takes a card also while the computer's reply is due. One would expect the player to
/// wait; several cards laid in time meet one reply, a second after the last of them.
/// QUIRK-17: also while the choice is open. One would expect the choice to come first; the card
/// goes to the Right/Top end.
void laySelectedCard(MainWindow& w) {
  const int card = w.state.selectedCard;
  if (card == noSelection || !gameTakesCards(w) || !w.game.card(card).held) return;
  w.state.selectedCard = noSelection;
  const bool replyWasDue = w.timer.enabled;
  if (layCard(w, card, Side::Player)) {
    afterPlayersCard(w);
  } else {
    refuseCard(w, replyWasDue);
  }
}

/// QUIRK-13: looks at twelve places after the current one, and from no selection starts at card 2.
/// One would expect all fourteen in turn; the player reaches cards 0 and 1 only on the second
/// round, and with one card left every other press selects an empty place.
int nextSelection(const MainWindow& w) {
  const int current = w.state.selectedCard;
  int card = current;
  for (int j = current + 1; j <= current + 12; ++j) {
    card = j >= handSize ? j - handSize : j;
    if (w.game.card(card).held) break;
  }
  return card;
}

/// With the choice at once, where the card makes the same number.
void selectNextCard(MainWindow& w) {
  TableState& s = w.state;
  w.card(s.selectedCard).paintNumbers(handColour);
  s.selectedCard = nextSelection(w);
  w.card(s.selectedCard).paintNumbers(selectionColour);
  if (offersChoice(w.game, s.selectedCard)) openChoice(w, s.selectedCard);
}

}  // namespace

void doubleClickCard(MainWindow& w, int card) {
  TableState& s = w.state;
  if (s.tutorial.running) return;
  // QUIRK-19: every double-click resets the tip, also one that does nothing else, as on a card of
  // the computer's or after the end. The player's tip then is a bare heading.
  resetTip(w);
  if (!gameTakesCards(w) || ownerOf(card) == Side::Computer) return;
  s.selectedCard = card;
  // QUIRK-14: the last card is laid without the choice, while 'p' opens it for the last card too.
  // One would expect the same of both.
  if (w.game.counts.cardsLeft[Side::Player] > 1 && offersChoice(w.game, card)) {
    openChoice(w, card);
    appendTip(w, sameNumberTip);
  } else {
    pressDiscard(w);
  }
  for (const int slot : handOf(Side::Player)) w.card(slot).paintNumbers(handColour);
  s.selectedCard = noSelection;
}

void pressDiscard(MainWindow& w) {
  closePanelIfOpen(w);
  laySelectedCard(w);
  w.state.lastOffer.laid = false;
}

void pressDiscardUnlessAsked(MainWindow& w) {
  if (!w.state.choiceOpen) pressDiscard(w);
}

void pressKey(MainWindow& w, const Control& focused, int key) {
  const bool selects = key == 'p' || key == 'P';
  if (w.state.choiceOpen && (&focused == &w.choice.keys || key == keyEscape)) {
    answerByKey(w, key);
  } else if (key == keyEnter || key == keySpace) {
    pressDiscard(w);
  } else if (w.state.takesCards && (&focused == &w.discard || selects)) {
    closePanelIfOpen(w);
    if (selects && gameTakesCards(w)) selectNextCard(w);
  }
}

}  // namespace mevracard
