#include "app/program.h"

#include <functional>

#include "play/about.h"
#include "play/game_menu.h"
#include "play/level_menu.h"
#include "play/new_game.h"
#include "play/passing.h"
#include "play/player_input.h"
#include "play/same_number_choice.h"
#include "play/size_panel.h"
#include "play/statistics.h"
#include "play/table_size.h"
#include "play/tips.h"
#include "play/turn_driver.h"
#include "play/tutorial.h"

namespace mevracard {

namespace {

using enum EventKind;
using Step = void (*)(MainWindow& w);

/// Holds an event against one thing after the other and runs the step of the one it came from.
struct On {
  MainWindow& w;
  const Event& event;

  void operator()(EventKind kind, const Form& form, Step step) const {
    if (event.kind == kind && event.form == &form) step(w);
  }
  void operator()(EventKind kind, const Control& control, Step step) const {
    if (event.kind == kind && event.control == &control) step(w);
  }
  void operator()(const MenuEntry& entry, Step step) const {
    if (event.entry == &entry) step(w);
  }
};

/// Anywhere on a card: its numbers answer as its frame.
void onCards(const On& on) {
  if (on.event.kind != DoubleClick) return;
  const Control* control = on.event.control;
  if (control->parent != nullptr) control = control->parent;
  for (const int slot : allSlots) {
    if (control == &on.w.card(slot).frame) doubleClickCard(on.w, slot);
  }
}

void onTable(const On& on) {
  MainWindow& w = on.w;
  const Event& event = on.event;
  on(Tick, w.form, tick);
  onCards(on);
  on(Click, w.discard, pressDiscard);
  on(Click, w.choice.keys, pressDiscardUnlessAsked);
  on(Click, w.choice.leftBottom, chooseLeftBottom);
  on(Click, w.choice.rightTop, chooseRightTop);
  on(Click, w.choice.cancel, cancelChoice);
  const bool key = event.kind == KeyPress && event.form == &w.form && event.control != nullptr;
  if (key) pressKey(w, *event.control, event.value);
  on(Close, w.form, chooseExit);
  on(SystemEnd, w.form, endBySystem);
}

void onPanels(const On& on) {
  MainWindow& w = on.w;
  on(MouseDown, w.tutorial.next, mouseDownOnNext);
  on(Click, w.tutorial.next, pressNext);
  on(Click, w.tutorial.stop, stopTutorial);
  if (on.event.control == &w.sizePanel.bar && on.event.kind == Scroll) {
    scrollTableSize(w, on.event.value);
  }
  on(Click, w.sizePanel.ok, closeSizePanel);
}

void onOtherWindows(const On& on) {
  MainWindow& w = on.w;
  on(Click, w.about.link, openHomepage);
  on(Click, w.about.ok, acknowledgePass);
  on(Close, w.about.form, closeAbout);
  on(Click, w.statistics.ok, closeStatistics);
  on(Click, w.statistics.clear, clearStatistics);
  on(Close, w.statistics.form, closeStatistics);
}

void onMenu(const On& on) {
  const MenuEntries& menu = on.w.menu;
  on(menu.playerLevel1, choosePlayerLevel1);
  on(menu.playerLevel2, choosePlayerLevel2);
  on(menu.computerLevel1, chooseComputerLevel1);
  on(menu.computerLevel2, chooseComputerLevel2);
  on(menu.newGame, chooseNewGame);
  on(menu.statistics, openStatistics);
  on(menu.exit, chooseExit);
  on(menu.about, showAbout);
  on(menu.tips, openTips);
  on(menu.homepage, openHomepage);
  on(menu.helpTableSize, openSizePanel);
  on(menu.tableSize, openSizePanel);
  on(menu.howToPlay, startTutorial);
}

/// A key of the game, or a press of a card.
bool isDoneAtTable(const MainWindow& w, const Event& event) {
  const bool pressesKeys =
      event.kind == Click && (event.control == &w.discard || event.control == &w.choice.keys);
  const bool typesKey = event.kind == KeyPress && event.form == &w.form;
  return pressesKeys || typesKey || event.kind == DoubleClick;
}

/// Every event that means something, in four lists: the table, its panels, the other windows, the
/// menu.
void answer(MainWindow& w, const Event& event) {
  w.playerActed = isDoneAtTable(w, event);
  const On on{w, event};
  onTable(on);
  onPanels(on);
  onOtherWindows(on);
  onMenu(on);
}

}  // namespace

Program::Program(Desktop& desktop) : window_(desktop) {
  desktop.attach({&window_.form, &window_.about.form, &window_.statistics.form},
                 [this](const Event& event) { handle(event); });
}

void Program::start() {
  run([this] {
    startGame(window_);
    window_.desktop.completeFiles();
  });
}

void Program::handle(const Event& event) {
  run([this, &event] { answer(window_, event); });
}

void Program::run(const std::function<void()>& doing) {
  try {
    try {
      doing();
    } catch (const std::exception& error) {
      window_.report(error.what());
    }
    window_.present();
  } catch (const EndedBySystem&) {  // NOLINT(bugprone-empty-catch): an event of its own follows
  }
}

}  // namespace mevracard
