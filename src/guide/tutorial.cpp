#include "guide/tutorial.h"

#include "ai/komputer.h"
#include "ai/selection.h"
#include "flow/new_game.h"
#include "game/rules.h"
#include "guide/tip_text.h"
#include "guide/tips.h"
#include "guide/tutorial_end.h"
#include "ui/card_cover.h"

namespace mevracard {

namespace {

constexpr int glideInterval = 60;

/// Place of NEXT on a maximized window, in pixels of 15 twips, where the screen cannot be asked.
constexpr ScreenPoint nextButton{112, 230};

/// The window's mapping to the screen where it cannot be asked: twips to pixels of 15 twips. The
/// two divisors differ because the title and menu bars stand above the table.
double screenX(double left) { return (left + 50) * 150 / 2230; }
double screenY(double top) { return (top + 50) * 150 / 2050; }

std::size_t slot(int number) { return static_cast<std::size_t>(number); }

/// A place of the real screen in pixels of 15 twips.
std::optional<ScreenPoint> truePlace(const MainWindow& w, const Box& control) {
  auto place = w.desktop.centreOnScreen(control);
  if (place) {
    place->x *= w.state.twipsPerPixel / 15.0;
    place->y *= w.state.twipsPerPixel / 15.0;
  }
  return place;
}

/// Which of a card's two numbers fits which end.
struct Aim {
  End end;
  bool upper;
};

std::optional<Aim> aimOf(const GameState& s, int card) {
  const int a = s.a.at(slot(card));
  const int b = s.b.at(slot(card));
  if (a == s.kotak[0]) return Aim{End::RightTop, true};
  if (b == s.kotak[0]) return Aim{End::RightTop, false};
  if (a == s.kotak[1]) return Aim{End::LeftBottom, true};
  if (b == s.kotak[1]) return Aim{End::LeftBottom, false};
  return std::nullopt;
}

/// The open number of the card at an end, after how many cards were laid there.
Label* openLabel(MainWindow& w, End end) {
  GameState& s = w.state;
  const int n = s.laidAt(end);
  if (n == 0) return nullptr;
  const auto card = slot(s.endCard(end).value_or(0));
  if (end == End::RightTop) return n <= 7 || n >= 22 ? &w.a.at(card) : &w.b.at(card);
  return n <= 6 || n >= 21 ? &w.b.at(card) : &w.a.at(card);
}

/// Takes the marks of a demonstrated move off all cards.
void unmark(MainWindow& w) {
  for (std::size_t i = 0; i < cardCount; ++i) paintNumbers(w, i, handColour);
}

void letComputerMove(MainWindow& w) {
  GameState& s = w.state;
  s.tipText = computerMovedTip() + s.tipText;
  // QUIRK-31: NEXT during the glide gives up the demonstrated move and lets the computer move at
  // once. One would expect it to wait; the player sees the computer move twice in a row. Meant.
  // The marks of the given-up move go, or the player would take them for the next one's.
  if (s.demoBusy == 1) {
    unmark(w);
    giveUpDemonstration(w);
  }
  komputer(w);
}

void chooseCardToShow(MainWindow& w) {
  GameState& s = w.state;
  const bool up = scanDirection(w.desktop.random()).step > 0;
  const ScanDirection hand =
      up ? ScanDirection{playerFirst, playerLast, +1} : ScanDirection{playerLast, playerFirst, -1};
  scanHand(s, hand, [&](int i) { return s.held[slot(i)] == 1 && matchesAny(s, i); });
}

}  // namespace

void how_Click(MainWindow& w) {
  GameState& s = w.state;
  w.lblHow.visible = true;
  s.tutorialDeal = 1;
  w.cmdHow.visible = true;
  w.cmdCL.visible = true;
  w.gttip.visible = true;
  s.demoMove = 0;
  s.demoBusy = 0;
  s.tutorialActive = 1;
  s.firstDealDone = 1;
  Form_Load(w);
  w.scr.enabled = false;
  w.file.enabled = false;
  w.rufoxx.enabled = false;
}

void cmdHow_Click(MainWindow& w) {
  GameState& s = w.state;
  resetTip(w);
  if (s.demoMove == 1) {
    letComputerMove(w);
    return;
  }
  if (s.demoBusy == 1) return;
  s.demoDone = 0;
  s.demoMove = 1;
  w.jam.disarm();
  chooseCardToShow(w);
  s.demoBusy = 1;
  MouseMv(w);
}

void cmdHow_MouseDown(MainWindow& w) {
  // QUIRK-30: pressed with the keyboard, NEXT does not pass here. One would expect the glide to
  // start at the button; it starts where the one before ended. Meant.
  const ScreenPoint start = truePlace(w, w.cmdHow).value_or(nextButton);
  w.state.n3 = start.x;
  w.state.n4 = start.y;
}

void MouseMv(MainWindow& w) {
  GameState& s = w.state;
  const Frame& frame = w.k.at(slot(s.playCard));
  const auto aim = aimOf(s, s.playCard);
  Label& target = (!aim || aim->upper ? w.a : w.b).at(slot(s.playCard));
  if (aim) {
    target.backColor = selectionColour;
    if (Label* open = openLabel(w, aim->end)) open->backColor = selectionColour;
  }
  const auto place = truePlace(w, target);
  if (aim) {
    const double top = aim->upper ? frame.top : frame.height / 2 + frame.top;
    s.n2 = (place ? place->y : screenY(top)) - s.n4;
  }
  s.n1 = (place ? place->x : screenX(frame.left)) - s.n3;
  s.demoTick = 0;
  w.jam.arm(glideInterval);
}

void cmdCL_Click(MainWindow& w) {
  w.jam.disarm();
  how_hilang(w);
  w.state.firstDealDone = 1;
  Form_Load(w);
}

}  // namespace mevracard
