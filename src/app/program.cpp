#include "app/program.h"

#include <array>
#include <functional>

#include "ai/passing.h"
#include "flow/game_menu.h"
#include "flow/level_menu.h"
#include "flow/new_game.h"
#include "flow/player_input.h"
#include "flow/same_number_choice.h"
#include "flow/turn_driver.h"
#include "guide/tips.h"
#include "guide/tutorial.h"
#include "ui/about_commands.h"
#include "ui/choice.h"
#include "ui/screen_panel.h"
#include "ui/screen_scale.h"
#include "ui/statistics_commands.h"

namespace mevracard {

namespace {

void card_DblClick(MainWindow& w, const Event& e) { k_DblClick(w, e.control->index); }

void scrctrl_Scroll(MainWindow& w, const Event& e) {
  w.scrctrl.value = e.value;
  scrctrl_Change(w);
}

void authormevra_Close(MainWindow& w) {
  // After a pass only OK gives the main window back, so closing the box counts as OK.
  if (w.authormevra.ctrcom.visible) {
    ctrcom_Click(w);
  } else {
    w.desktop.hide(w.authormevra.form);
  }
}

/// Enter or Space on the key button of the choice: nothing while it is open, else Discard.
void hilang_Click(MainWindow& w) {
  if (!choiceIsOpen(w)) mulai_Click(w);
}

/// One row: an event on the thing of this name, and its handler, with the event if it needs it.
struct Row {
  EventKind kind;
  std::string_view name;
  void (*handler)(MainWindow&) = nullptr;
  void (*eventHandler)(MainWindow&, const Event&) = nullptr;
};

constexpr std::array eventTable{
    Row{EventKind::Tick, "mevraku", jam_Timer},
    Row{EventKind::DoubleClick, "k", nullptr, card_DblClick},
    Row{EventKind::DoubleClick, "a", nullptr, card_DblClick},
    Row{EventKind::DoubleClick, "b", nullptr, card_DblClick},
    Row{EventKind::Click, "mulai", mulai_Click},
    Row{EventKind::Click, "hilang", hilang_Click},
    Row{EventKind::Click, "kiri", kiri_Click},
    Row{EventKind::Click, "kanan", kanan_Click},
    Row{EventKind::Click, "canc", canc_Click},
    Row{EventKind::Click, "ctrcom", ctrcom_Click},
    Row{EventKind::Click, "Label1", Label1_Click},
    Row{EventKind::Click, "tutuprec", tutuprec_Click},
    Row{EventKind::Click, "hapusrec", hapusrec_Click},
    Row{EventKind::Click, "cmdscreen", cmdscreen_Click},
    Row{EventKind::Scroll, "scrctrl", nullptr, scrctrl_Scroll},
    Row{EventKind::MouseDown, "cmdHow", cmdHow_MouseDown},
    Row{EventKind::Click, "cmdHow", cmdHow_Click},
    Row{EventKind::Click, "cmdCL", cmdCL_Click},
    Row{EventKind::Menu, "pl1", pl1_Click},
    Row{EventKind::Menu, "pl2", pl2_Click},
    Row{EventKind::Menu, "cl1", cl1_Click},
    Row{EventKind::Menu, "cl2", cl2_Click},
    Row{EventKind::Menu, "rg", rg_Click},
    Row{EventKind::Menu, "stat", stat_Click},
    Row{EventKind::Menu, "exit", exit_Click},
    Row{EventKind::Menu, "author", author_Click},
    Row{EventKind::Menu, "tips", tips_Click},
    Row{EventKind::Menu, "go", go_Click},
    Row{EventKind::Menu, "rufoxx", rufoxx_Click},
    Row{EventKind::Menu, "scr", scr_Click},
    Row{EventKind::Menu, "how", how_Click},
    Row{EventKind::Close, "mevraku", exit_Click},
    Row{EventKind::Close, "authormevra", authormevra_Close},
    Row{EventKind::Close, "kalahmenang", closeStatistics},
    Row{EventKind::SystemEnd, "mevraku", endBySystem},
};

std::string_view nameOf(const Event& event) {
  if (event.control != nullptr) return event.control->name;
  return event.entry != nullptr ? event.entry->name : event.form->name;
}

/// Keys of the main window: the choice takes its own, Esc cancels it wherever the focus is, and
/// the keys of the player's turn that the focused control has no use for go to the Discard button.
void pressKey(MainWindow& w, const Event& event) {
  const int key = event.value;
  if (choiceIsOpen(w) && (event.control == &w.hilang || key == keyEscape)) {
    hilang_KeyPress(w, key);
  } else if (key == keyEnter || key == keySpace) {
    mulai_Click(w);
  } else if (w.mulai.usable() && (event.control == &w.mulai || key == 'p' || key == 'P')) {
    mulai_KeyPress(w, key);
  }
}

void dispatch(MainWindow& w, const Event& event) {
  if (event.kind == EventKind::KeyPress) {
    if (event.form == &w.form) pressKey(w, event);
    return;
  }
  const std::string_view name = nameOf(event);
  // `Label1` is the link in the About window and plain headings in the main one.
  if (name == "Label1" && event.form == &w.form) return;
  for (const Row& row : eventTable) {
    if (row.kind != event.kind || row.name != name) continue;
    if (row.handler != nullptr) {
      row.handler(w);
    } else {
      row.eventHandler(w, event);
    }
    return;
  }
}

}  // namespace

Program::Program(Desktop& desktop) : window_(desktop) {
  desktop.attach({&window_.form, &window_.authormevra.form, &window_.kalahmenang.form},
                 [this](const Event& event) { handle(event); });
}

void Program::start() {
  run([this] { Form_Load(window_); });
}

void Program::handle(const Event& event) {
  run([this, &event] { dispatch(window_, event); });
}

void Program::run(const std::function<void()>& step) {
  try {
    try {
      step();
    } catch (const std::exception& error) {
      window_.report(error.what());
    }
    window_.present();
  } catch (const EndedBySystem&) {  // NOLINT(bugprone-empty-catch): an event of its own follows
  }
}

}  // namespace mevracard
