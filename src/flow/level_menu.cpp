#include "flow/level_menu.h"

#include "flow/new_game.h"
#include "store/saved_settings.h"

namespace mevracard {

namespace {

/// Saves first: a level that cannot be saved is not taken.
/// QUIRK-27: the running game is dropped without a word. One would expect a loss, as for New Game;
/// the statistics do not see it. Meant, here and at the tutorial's start.
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
