#include "game/opening.h"

#include "game/ending.h"
#include "game/placement.h"
#include "game/rules.h"
#include "guide/tip_text.h"
#include "guide/tips.h"
#include "ui/card_cover.h"

namespace mevracard {

namespace {

std::optional<int> slotOfDoubleZero(const GameState& s) {
  for (std::size_t i = 0; i < cardCount; ++i) {
    if (s.a[i] == 0 && s.b[i] == 0) return static_cast<int>(i);
  }
  return std::nullopt;
}

void layDoubleZero(MainWindow& w, int card) {
  GameState& s = w.state;
  const auto i = static_cast<std::size_t>(card);
  s.playCard = card;
  // QUIRK-04: it glides towards the place of the last card of the game before, and not at all when
  // the player's hand fits none of that game's last numbers. One would expect a glide to the
  // centre; the player sees the 0-0 jump there from elsewhere. Meant.
  moving(w);
  putAt(w.k[i], chainPlace(End::RightTop, openingPosition, 0), w.scaleFactor());
  s.k0 = card;
  s.k1 = card;
  paintNumbers(w, i, handColour);
  s.kotak = {s.a[i], s.b[i]};
  ++s.kjumlah;
  s.held[i] = 0;
  s.moveMade = 1;
  uncoverCard(w, i);
}

void giveTurnToPlayer(MainWindow& w) {
  w.state.sisa[0] = 13;
  w.state.moveMade = 0;
  w.showTurn(yourTurn);
  gnr(w);
  raiseStatus(w);
}

void giveTurnToComputer(MainWindow& w) {
  w.state.sisa[1] = 13;
  w.state.moveMade = 1;
  w.showTurn(computersTurn);
  w.state.tutorialActive = 0;
  w.state.demoMove = 0;
  raiseStatus(w);
  w.state.tipText += openingAnsweredTip();
}

}  // namespace

void discard00(MainWindow& w) {
  GameState& s = w.state;
  s.demoDone = 1;
  s.tipText = tipHeading() + openingTip();
  const auto card = slotOfDoubleZero(s);
  if (card) layDoubleZero(w, *card);
  w.mulai.caption = "Discard";
  w.form.giveFocus(w.mulai);
  if (card.value_or(0) > playerLast) {
    giveTurnToPlayer(w);
  } else {
    giveTurnToComputer(w);
  }
  s.selectedCard = noSelection;
  if (s.tutorialDeal == 1) w.jam.arm(1000);
}

}  // namespace mevracard
