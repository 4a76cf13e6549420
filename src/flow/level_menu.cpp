#include "flow/level_menu.h"

#include "flow/new_game.h"
#include "store/saved_settings.h"

namespace mevracard {

namespace {

/// Saves first: a level that cannot be saved is not taken.
void changeLevels(MainWindow& w, const LevelFields& levels) {
  writeSettings(w, levels);
  w.levels = levels;
  w.state.firstDealDone = 1;
}

void choosePlayerLevel(MainWindow& w, int level) {
  changeLevels(w, {std::to_string(level), w.levels.computer});
  checkPlayerLevel(w, level);
  Form_Load(w);
}

void chooseComputerLevel(MainWindow& w, int level) {
  changeLevels(w, {w.levels.player, std::to_string(level)});
  checkComputerLevel(w, level);
  Form_Load(w);
}

}  // namespace

void pl1_Click(MainWindow& w) { choosePlayerLevel(w, 1); }
void pl2_Click(MainWindow& w) { choosePlayerLevel(w, 2); }
void cl1_Click(MainWindow& w) { chooseComputerLevel(w, 1); }
void cl2_Click(MainWindow& w) { chooseComputerLevel(w, 2); }

}  // namespace mevracard
