#include "flow/new_game.h"

#include "ai/passing.h"
#include "game/deal.h"
#include "game/opening.h"
#include "game/placement.h"
#include "game/rules.h"
#include "guide/tutorial_end.h"
#include "store/saved_settings.h"
#include "ui/card_cover.h"
#include "ui/choice.h"
#include "ui/screen_scale.h"

namespace mevracard {

namespace {

/// Nothing that the game before had under way may reach the new one.
void dropGameBefore(MainWindow& w) {
  GameState& s = w.state;
  w.jam.disarm();
  closeChoice(w);
  s.leftEndChosen = 0;
  s.ngisor = 0;
  s.computerPassed = 0;
  s.larangan = s.bahaya = s.bahaya2 = noTacticalNumber;
}

/// QUIRK-08: the seed is the year and the sum of minute and second, nothing else: a year has at
/// most 118 different deals. One would expect a new deal every time; a player who comes back at a
/// minute and second of the same sum meets the same hands. Meant.
void seedRandom(MainWindow& w) {
  const ClockTime time = w.desktop.clock();
  w.state.dealSeed = dealSeedOf(w.desktop.shortDate(), time.minute, time.second);
}

void clearTable(MainWindow& w, double scale) {
  GameState& s = w.state;
  for (auto& label : w.akhir) label.visible = false;
  s.lina = 0;
  s.linb = 0;
  s.sisa = {14, 14, 0, 0};
  for (std::size_t i = 0; i < w.hubung.size(); ++i) putAt(w.hubung[i], markerPark(i), scale);
  s.kjumlah = 0;
}

void layOutHands(MainWindow& w, double scale) {
  w.desktop.seedRandom(w.state.dealSeed);
  const Deck deck =
      w.stackedDeck ? *w.stackedDeck : shuffledDeck([&w] { return w.desktop.random(); });
  for (std::size_t i = 0; i < cardCount; ++i) {
    w.state.a[i] = deck[i].first;
    w.state.b[i] = deck[i].second;
    putAt(w.k[i], handPlace(static_cast<int>(i)), scale);
  }
}

void takeUpHands(MainWindow& w) {
  for (std::size_t i = 0; i < cardCount; ++i) {
    w.state.held[i] = 1;
    w.k[i].backColor = handColour;
    paintNumbers(w, i, handColour);
  }
}

/// A screen that has changed since the table was sized changes the table with it.
void takeScreenMetrics(MainWindow& w) {
  const int before = w.state.screenHeight;
  const int now = w.desktop.screenHeight();
  w.state.screenHeight = now;
  w.state.twipsPerPixel = w.desktop.twipsPerPixel();
  const bool sized = w.state.firstDealDone.value_or(0) != 0 && before > 0;
  if (sized && now != before) ScreenScale(w, static_cast<double>(now) / before);
}

}  // namespace

void Form_Load(MainWindow& w) {
  takeScreenMetrics(w);
  w.state.theend = 0;
  w.mulai.visible = true;
  w.mulai.width = 0;
  w.mulai.height = 0;
  w.desktop.show(w.form);
  for (auto& card : w.k) card.visible = false;
  readSettings(w);
  Awal(w);
}

void Awal(MainWindow& w) {
  GameState& s = w.state;
  dropGameBefore(w);
  const bool firstDeal = s.firstDealDone.value_or(0) == 0;
  const double scale = firstDeal ? 1.0 : w.scaleFactor();
  seedRandom(w);
  clearTable(w, scale);
  layOutHands(w, scale);
  if (firstDeal) ScreenScale(w, w.scaleFactor());
  takeUpHands(w);
  s.selectedCard = 13;
  coverComputersHand(w);
  w.say("Starting with discarding 0-0 card.");
  for (auto& card : w.k) card.visible = true;
  discard00(w);
  if (s.moveMade == 1) {
    w.jam.arm(1000);
  } else if (playerIsStuck(s)) {
    // The six other cards with a 0 are all the computer's: there is nothing to move.
    w.jam.disarm();
    if (w.cmdCL.visible) {
      // Else the tick after its OK would take the opening for a demonstrated move.
      s.demoDone = 0;
      giveUpDemonstration(w);
    }
    announcePlayersPass(w);
  }
}

}  // namespace mevracard
