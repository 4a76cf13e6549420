#include "play/new_game.h"

#include "game/deal.h"
#include "game/rules.h"
#include "play/choice.h"
#include "play/ending.h"
#include "play/opening.h"
#include "play/passing.h"
#include "play/placement.h"
#include "play/saved_settings.h"
#include "play/table_size.h"
#include "play/tutorial_end.h"
#include "texts/messages.h"
#include "ui/colors.h"

namespace mevracard {

namespace {

/// QUIRK-08: the seed is the year and the sum of minute and second, nothing else: a year has at
/// most 118 different deals. One would expect a new deal every time; a player who comes back at a
/// minute and second of the same sum meets the same hands.
void seedRandom(MainWindow& w) {
  const ClockTime time = w.desktop.clock();
  w.game.dealSeed = dealSeedOf(w.desktop.shortDate(), time.minute, time.second);
  w.desktop.seedRandom(w.game.dealSeed);
}

Deck nextDeck(MainWindow& w) {
  seedRandom(w);
  if (w.stackedDeck) return *w.stackedDeck;
  return shuffledDeck([&w] { return w.desktop.random(); });
}

/// Nothing that the game before had under way may reach the new one.
void clearTable(MainWindow& w, double scale) {
  w.timer.disarm();
  closeChoice(w);
  w.result.show(false);
  for (std::size_t i = 0; i < w.table.markers.size(); ++i) {
    putAt(w.table.markers[i], markerPark(i), scale);
  }
}

void layOutHands(MainWindow& w, double scale) {
  for (const int slot : allSlots) {
    putAt(w.card(slot).frame, handPlace(slot), scale);
    w.card(slot).frame.backColor = handColour;
    w.card(slot).paintNumbers(handColour);
  }
}

/// Face up at player level 1, face down at level 2.
void coverComputersHand(MainWindow& w) {
  for (const int slot : handOf(Side::Computer)) {
    if (w.game.levels.player == 1) {
      w.card(slot).uncover();
    } else {
      w.card(slot).cover();
    }
  }
}

void showCards(MainWindow& w, bool visible) {
  for (CardControls& card : w.cards) card.frame.visible = visible;
}

/// The six other cards with a 0 are all the computer's: there is nothing to move.
void passOpening(MainWindow& w) {
  w.timer.disarm();
  if (w.state.tutorial.running) {
    // Else the tick after its OK would take the opening for a demonstrated move.
    w.state.demo.done = false;
    giveUpDemonstratedMove(w);
  }
  announcePlayersPass(w);
}

/// A screen that has changed since the table was sized changes the table with it.
void takeScreenMetrics(MainWindow& w) {
  const int before = w.state.screenHeight;
  const int now = w.desktop.screenHeight();
  w.state.screenHeight = now;
  w.state.twipsPerPixel = w.desktop.twipsPerPixel();
  const bool sized = w.state.newGameAsked && before > 0;
  if (sized && now != before) rescaleTable(w, static_cast<double>(now) / before);
}

}  // namespace

void startGame(MainWindow& w) {
  takeScreenMetrics(w);
  w.game.ending.over = false;
  w.state.takesCards = true;
  w.discard.width = 0;  // it shows for the keyboard alone
  w.discard.height = 0;
  w.desktop.show(w.form);
  showCards(w, false);
  loadSettings(w);
  deal(w);
}

void startAnotherGame(MainWindow& w) {
  w.state.newGameAsked = true;
  startGame(w);
}

void deal(MainWindow& w) {
  const bool firstDeal = !w.state.newGameAsked;
  const double scale = firstDeal ? 1.0 : w.scale();
  deal(w.game, nextDeck(w));
  clearTable(w, scale);
  layOutHands(w, scale);
  if (firstDeal) rescaleTable(w, w.scale());
  coverComputersHand(w);
  w.say(openingMessage);
  showCards(w, true);
  if (openWithDoubleZero(w) == Side::Computer) {
    w.timer.arm(replyDelay);
  } else if (mustPass(w.game, Side::Player)) {
    passOpening(w);
  }
}

}  // namespace mevracard
