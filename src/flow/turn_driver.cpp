#include "flow/turn_driver.h"

#include <cmath>

#include "ai/komputer.h"
#include "game/ending.h"
#include "game/placement.h"
#include "guide/tip_text.h"

namespace mevracard {

namespace {

/// Drawn in to where it still counts in whole numbers: a script may ask for any distance.
int wholeNumber(double value) {
  constexpr double limit = 1e9;
  return static_cast<int>(std::fmin(std::fmax(value, -limit), limit));
}

constexpr double farAway = 5000;  ///< outside the window: the pointer vanishes there

/// Moves the pointer to a place given in pixels of 15 twips.
void point(MainWindow& w, double x, double y) {
  const double factor = 15.0 / w.state.twipsPerPixel;
  MoveMouse(w, static_cast<float>(x * factor), static_cast<float>(y * factor));
}

void playDemonstratedCard(MainWindow& w) {
  GameState& s = w.state;
  const auto card = static_cast<std::size_t>(s.playCard);
  s.n3 += s.n1;
  s.n4 += s.n2;
  s.demoBusy = 0;
  s.tutorialDeal = 0;
  if (s.held.at(card) == 1) {
    Cocok(w);
  } else {
    // A hand without a fitting card is aimed at whatever slot came last, which may be empty.
    w.jam.disarm();
    s.moveMade = 0;
  }
  w.showTurn(computersTurn);
  s.tipText = demonstratedTip(s.a[card], s.b[card]);
  if (s.moveMade == 1) {
    --s.sisa[1];
    player_akhir(w);
  }
}

/// The pointer's way by tick: a glide of `steps` ticks, vanishing and reappearing twice as a
/// double-click, a pause, and the play.
void demonstrate(MainWindow& w) {
  GameState& s = w.state;
  const double dx = s.n1, dy = s.n2, x0 = s.n3, y0 = s.n4;
  const int i = ++s.demoTick;
  const int steps = wholeNumber(std::sqrt(dx * dx + dy * dy) / 10);
  if (i <= steps) {
    point(w, x0 + i * dx / steps, y0 + i * dy / steps);
  } else if (i < steps + 3 || i == steps + 4 || i == steps + 5) {
    point(w, farAway, farAway);
  } else if (i == steps + 3 || i == steps + 6) {
    point(w, x0 + dx, y0 + dy);
  } else if (i == steps + 10) {
    playDemonstratedCard(w);
  }
}

}  // namespace

void MoveMouse(MainWindow& w, float x, float y) {
  w.desktop.movePointer(wholeNumber(std::nearbyint(x)), wholeNumber(std::nearbyint(y)));
}

void jam_Timer(MainWindow& w) {
  GameState& s = w.state;
  // While another window has disabled this one no move is made; the timer goes on and comes again.
  if (!w.form.enabled) return;
  if (s.demoMove == 1) {
    if (s.demoDone == 1) {
      // QUIRK-41: before the first demonstrated move, the tick after a pass finds it done. One
      // would expect the line to name the computer; the player reads "Your Turn", and NEXT lets the
      // computer move. Meant.
      w.showTurn(yourTurn);
      raiseStatus(w);
      s.tutorialActive = 0;
      return;
    }
    demonstrate(w);
  } else if (s.tutorialActive == 0) {
    w.showTurn(yourTurn);
    komputer(w);
  }
}

}  // namespace mevracard
