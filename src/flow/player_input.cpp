#include "flow/player_input.h"

#include "flow/new_game.h"
#include "flow/same_number_choice.h"
#include "game/ending.h"
#include "game/placement.h"
#include "game/rules.h"
#include "guide/tip_text.h"
#include "guide/tips.h"
#include "ui/card_cover.h"
#include "ui/choice.h"
#include "ui/screen_panel.h"

namespace mevracard {

namespace {

bool isHeld(const GameState& s, int card) { return s.held.at(static_cast<std::size_t>(card)) == 1; }

/// During the tutorial the player's cards are played by NEXT alone; after the end by nobody, also
/// when a new table size has shown the Discard button again.
bool gameTakesCards(const MainWindow& w) {
  return w.mulai.visible && w.state.theend == 0 && !w.lblHow.visible;
}

/// A card on the table is never played again, so the choice is for held ones only.
bool offersChoice(const GameState& s, int card) {
  return isHeld(s, card) && makesSameNumber(s, card);
}

void closePanel(MainWindow& w) {
  if (!w.cmdscreen.visible) return;
  try {
    cmdscreen_Click(w);
  } catch (const PlatformError& error) {
    w.report(error.what());
  }
}

/// QUIRK-39: a refused card keeps its red numbers although it is no longer selected. One would
/// expect them to go; the player may see two red cards after the next 'p'. Meant.
/// A reply that was due stays due, else a player who cannot move would wait
/// for ever; and the choice must not go on with the refused card.
void refuseCard(MainWindow& w, bool replyWasDue) {
  if (replyWasDue) w.jam.goOn();
  if (!choiceIsOpen(w)) return;
  closeChoice(w);
  w.showTurn(replyWasDue ? computersTurn : yourTurn);
}

/// QUIRK-36: takes a card also while the computer's reply is due. One would expect the player to
/// wait; several cards laid in time meet one reply, a second after the last of them. Meant.
void laySelectedCard(MainWindow& w) {
  GameState& s = w.state;
  if (!isHeld(s, s.selectedCard)) return;
  s.playCard = s.selectedCard;
  s.selectedCard = noSelection;
  const bool replyWasDue = w.jam.enabled;
  Cocok(w);
  if (s.moveMade == 1) {
    --s.sisa[1];
    player_akhir(w);
  } else {
    refuseCard(w, replyWasDue);
  }
}

/// QUIRK-13: looks at twelve places after the current one, and from no selection starts at card 2.
/// One would expect all fourteen in turn; the player reaches cards 0 and 1 only on the second
/// round, and with one card left every other press selects an empty place. Meant.
int nextSelection(const GameState& s) {
  const int current = s.selectedCard;
  int card = current;
  for (int j = current + 1; j <= current + 12; ++j) {
    card = j > 13 ? j - 14 : j;
    if (isHeld(s, card)) break;
  }
  return card;
}

}  // namespace

void k_DblClick(MainWindow& w, int card) {
  GameState& s = w.state;
  if (w.lblHow.visible) return;
  // QUIRK-19: every double-click resets the tip, also one that does nothing else, as on a card of
  // the computer's or after the end. The player's tip then is a bare heading. Meant.
  resetTip(w);
  if (!gameTakesCards(w) || card >= handSize) return;
  s.selectedCard = card;
  // QUIRK-14: the last card is laid without the choice, while 'p' opens it for the last card too.
  // One would expect the same of both. Meant.
  if (s.sisa[1] > 1 && offersChoice(s, card)) {
    openChoice(w, card);
    s.tipText += sameNumberTip(s.kotak[0], s.kotak[1]);
  } else {
    mulai_Click(w);
  }
  for (std::size_t i = playerFirst; i <= playerLast; ++i) paintNumbers(w, i, handColour);
  s.selectedCard = noSelection;
}

void mulai_KeyPress(MainWindow& w, int key) {
  closePanel(w);
  if ((key != 'p' && key != 'P') || !gameTakesCards(w)) return;
  GameState& s = w.state;
  const auto current = static_cast<std::size_t>(s.selectedCard);
  w.a.at(current).backColor = handColour;
  w.b.at(current).backColor = handColour;
  s.selectedCard = nextSelection(s);
  paintNumbers(w, static_cast<std::size_t>(s.selectedCard), selectionColour);
  if (offersChoice(s, s.selectedCard)) openChoice(w, s.selectedCard);
}

void mulai_Click(MainWindow& w) {
  GameState& s = w.state;
  closePanel(w);
  if (s.selectedCard != noSelection && gameTakesCards(w)) {
    // QUIRK-17: without the exclamation mark, so that the open choice does not take this way. One
    // would expect its text; Discard lays the selected card also while the choice is open. Meant.
    if (w.tanda.visible && w.tanda.caption == "'Mevra'   Choose One") {
      w.tanda.visible = false;
      w.panah1.visible = false;
      w.panah2.visible = false;
      w.panah3.visible = false;
      s.playCard = s.selectedCard;
    } else if (w.mulai.caption != "Begin") {
      laySelectedCard(w);
    } else {
      Form_Load(w);
    }
  }
  s.moveMade = 0;
}

}  // namespace mevracard
