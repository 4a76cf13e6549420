#include "play/choice_answers.h"

#include "platform/event.h"
#include "play/choice.h"
#include "play/ending.h"
#include "play/placement.h"
#include "play/status.h"
#include "play/tips.h"

namespace mevracard {

namespace {

void layChosenCard(MainWindow& w, End end) {
  resetTip(w);
  closeChoice(w);
  w.status.visible = false;
  if (end == End::LeftBottom) w.game.aimsLeftBottom[Side::Player] = true;
  const bool laid = layCard(w, w.state.choiceCard, Side::Player);
  // Only a script can have changed the numbers meanwhile; the card is counted all the same.
  if (!laid) --w.game.counts.cardsLeft[Side::Player];
  afterPlayersCard(w);
}

int digitKey(int number) { return '0' + number; }

}  // namespace

void chooseLeftBottom(MainWindow& w) { layChosenCard(w, End::LeftBottom); }

void chooseRightTop(MainWindow& w) { layChosenCard(w, End::RightTop); }

void cancelChoice(MainWindow& w) {
  // QUIRK-40: a card selected by 'p' stays selected. One would expect to be asked again; the next
  // Enter lays it at the Right/Top end.
  resetTip(w);
  appendGeneralTip(w);
  closeChoice(w);
  announce(w, Announcement::YourTurn);
}

void answerByKey(MainWindow& w, int key) {
  if (key == keyEscape) {
    cancelChoice(w);
  } else if (key == digitKey(w.game.chain.openNumber[End::RightTop])) {
    chooseLeftBottom(w);
  } else if (key == digitKey(w.game.chain.openNumber[End::LeftBottom])) {
    chooseRightTop(w);
  }
}

}  // namespace mevracard
