#include "app/program.h"

#include <algorithm>
#include <array>
#include <functional>

#include "play/about.h"
#include "play/choice_answers.h"
#include "play/game_menu.h"
#include "play/level_menu.h"
#include "play/new_game.h"
#include "play/passing.h"
#include "play/player_input.h"
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
using StepWithNumber = void (*)(MainWindow& w, int number);
using StepWithKey = void (*)(MainWindow& w, const Control& focused, int key);

/// Holds an event against one thing after the other and runs the step of the one it came from.
struct On {
  MainWindow& w;
  const Event& event;

  void operator()(EventKind kind, const Form& form, Step step) const {
    if (event.kind == kind && event.form == &form) step(w);
  }
  void operator()(EventKind kind, const Form& form, StepWithKey step) const {
    const bool here = event.kind == kind && event.form == &form && event.control != nullptr;
    if (here && event.value != keyUntyped) step(w, *event.control, event.value);
  }
  void operator()(EventKind kind, const Control& control, Step step) const {
    if (event.kind == kind && event.control == &control) step(w);
  }
  void operator()(EventKind kind, const ScrollBar& bar, StepWithNumber step) const {
    if (event.kind == kind && event.control == &bar) step(w, event.value);
  }
  /// Anywhere on a card, as its numbers answer with its frame: a step for its slot.
  void operator()(EventKind kind, std::array<CardControls, cardCount>& cards,
                  StepWithNumber step) const {
    if (event.kind != kind || event.control == nullptr) return;
    const Control* frame = event.control->parent != nullptr ? event.control->parent : event.control;
    const auto card = std::find_if(cards.begin(), cards.end(),
                                   [&](const CardControls& c) { return &c.frame == frame; });
    if (card != cards.end()) step(w, static_cast<int>(card - cards.begin()));
  }
  void operator()(const MenuEntry& entry, Step step) const {
    if (event.entry == &entry) step(w);
  }
};

void onTable(const On& on) {
  MainWindow& w = on.w;
  on(Tick, w.form, tick);
  on(DoubleClick, w.cards, doubleClickCard);
  on(Click, w.discard, pressDiscard);
  on(Click, w.choice.keys, pressDiscardUnlessAsked);
  on(Click, w.choice.leftBottom, chooseLeftBottom);
  on(Click, w.choice.rightTop, chooseRightTop);
  on(Click, w.choice.cancel, cancelChoice);
  on(KeyPress, w.form, pressKey);
  on(Close, w.form, chooseExit);
  on(SystemEnd, w.form, endBySystem);
}

void onPanels(const On& on) {
  MainWindow& w = on.w;
  on(MouseDown, w.tutorial.next, mouseDownOnNext);
  on(Click, w.tutorial.next, pressNext);
  on(Click, w.tutorial.stop, stopTutorial);
  on(Scroll, w.sizePanel.bar, scrollTableSize);
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

/// A key of the game, a press of a card, or one of Clear.
bool wantsAnswer(const MainWindow& w, const Event& event) {
  const bool presses =
      event.kind == Click && (event.control == &w.discard || event.control == &w.choice.keys ||
                              event.control == &w.statistics.clear);
  return presses || event.kind == KeyPress || event.kind == DoubleClick;
}

/// Every event that means something, in four lists: the table, its panels, the other windows, the
/// menu.
void answer(MainWindow& w, const Event& event) {
  w.answerDueIn = wantsAnswer(w, event) ? event.form : nullptr;
  const On on{w, event};
  if (event.kind == Menu) {
    onMenu(on);
  } else if (event.form == &w.form) {
    onTable(on);
    onPanels(on);
  } else {
    onOtherWindows(on);
  }
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
