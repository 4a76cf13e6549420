#include "app/program.h"

#include <array>
#include <functional>

#include "play/about.h"
#include "play/game_menu.h"
#include "play/level_menu.h"
#include "play/new_game.h"
#include "play/passing.h"
#include "play/player_input.h"
#include "play/same_number_choice.h"
#include "play/screen_scale.h"
#include "play/size_panel.h"
#include "play/statistics.h"
#include "play/tips.h"
#include "play/turn_driver.h"
#include "play/tutorial.h"

namespace mevracard {

namespace {

using Handler = void (*)(MainWindow&, const Event&);

/// A step that needs nothing of the event.
template <void (*run)(MainWindow&)>
void step(MainWindow& w, const Event& /*event*/) {
  run(w);
}

void onCard(MainWindow& w, const Event& event) { doubleClickCard(w, event.control->index); }

void onScroll(MainWindow& w, const Event& event) { scrollScreenSize(w, event.value); }

/// Enter or Space on the key button of the choice: nothing while it is open, else Discard.
void pressChoiceKeys(MainWindow& w) {
  if (!w.state.choiceOpen) pressDiscard(w);
}

/// One row: an event on the thing of this name, and what answers it.
struct Row {
  EventKind kind;
  std::string_view name;
  Handler handler;
};

constexpr std::array eventTable{
    Row{EventKind::Tick, "mevraku", step<tick>},
    Row{EventKind::DoubleClick, "k", onCard},
    Row{EventKind::DoubleClick, "a", onCard},
    Row{EventKind::DoubleClick, "b", onCard},
    Row{EventKind::Click, "mulai", step<pressDiscard>},
    Row{EventKind::Click, "hilang", step<pressChoiceKeys>},
    Row{EventKind::Click, "kiri", step<chooseLeftBottom>},
    Row{EventKind::Click, "kanan", step<chooseRightTop>},
    Row{EventKind::Click, "canc", step<cancelChoice>},
    Row{EventKind::Click, "ctrcom", step<acknowledgePass>},
    Row{EventKind::Click, "Label1", step<openHomepage>},
    Row{EventKind::Click, "tutuprec", step<closeStatistics>},
    Row{EventKind::Click, "hapusrec", step<clearStatistics>},
    Row{EventKind::Click, "cmdscreen", step<closeSizePanel>},
    Row{EventKind::Scroll, "scrctrl", onScroll},
    Row{EventKind::MouseDown, "cmdHow", step<mouseDownOnNext>},
    Row{EventKind::Click, "cmdHow", step<pressNext>},
    Row{EventKind::Click, "cmdCL", step<stopTutorial>},
    Row{EventKind::Menu, "pl1", step<choosePlayerLevel1>},
    Row{EventKind::Menu, "pl2", step<choosePlayerLevel2>},
    Row{EventKind::Menu, "cl1", step<chooseComputerLevel1>},
    Row{EventKind::Menu, "cl2", step<chooseComputerLevel2>},
    Row{EventKind::Menu, "rg", step<chooseNewGame>},
    Row{EventKind::Menu, "stat", step<openStatistics>},
    Row{EventKind::Menu, "exit", step<chooseExit>},
    Row{EventKind::Menu, "author", step<showAbout>},
    Row{EventKind::Menu, "tips", step<openTips>},
    Row{EventKind::Menu, "go", step<openHomepage>},
    Row{EventKind::Menu, "rufoxx", step<openSizePanel>},
    Row{EventKind::Menu, "scr", step<openSizePanel>},
    Row{EventKind::Menu, "how", step<startTutorial>},
    Row{EventKind::Close, "mevraku", step<chooseExit>},
    Row{EventKind::Close, "authormevra", step<closeAbout>},
    Row{EventKind::Close, "kalahmenang", step<closeStatistics>},
    Row{EventKind::SystemEnd, "mevraku", step<endBySystem>},
};

std::string_view nameOf(const Event& event) {
  if (event.control != nullptr) return event.control->name;
  return event.entry != nullptr ? event.entry->name : event.form->name;
}

/// A label answers a click only if it is the link; others share its name.
bool isPlainLabel(const Control* control) {
  return control != nullptr && control->kind == ControlKind::Label &&
         !static_cast<const Label*>(control)->link;
}

/// Keys of the main window: the choice takes its own, Esc cancels it wherever the focus is, and
/// the keys of the player's turn that the focused control has no use for go to the Discard button,
/// which takes none while it is hidden.
void pressKey(MainWindow& w, const Event& event) {
  const int key = event.value;
  if (w.state.choiceOpen && (event.control == &w.choice.keys || key == keyEscape)) {
    pressKeyOfChoice(w, key);
  } else if (key == keyEnter || key == keySpace) {
    pressDiscard(w);
  } else if (w.discard.usable() && (event.control == &w.discard || key == 'p' || key == 'P')) {
    pressKeyOnDiscard(w, key);
  }
}

void dispatch(MainWindow& w, const Event& event) {
  if (event.kind == EventKind::KeyPress) {
    if (event.form == &w.form) pressKey(w, event);
    return;
  }
  if (event.kind == EventKind::Click && isPlainLabel(event.control)) return;
  const std::string_view name = nameOf(event);
  for (const Row& row : eventTable) {
    if (row.kind != event.kind || row.name != name) continue;
    row.handler(w, event);
    return;
  }
}

}  // namespace

Program::Program(Desktop& desktop) : window_(desktop) {
  desktop.attach({&window_.form, &window_.about.form, &window_.statistics.form},
                 [this](const Event& event) { handle(event); });
}

void Program::start() {
  run([this] { startGame(window_); });
}

void Program::handle(const Event& event) {
  run([this, &event] { dispatch(window_, event); });
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
