#include "play/level_menu.h"

#include "play/new_game.h"
#include "play/saved_settings.h"

namespace mevracard {

namespace {

/// A level that cannot be saved is not taken: the new game reads it from the file.
/// QUIRK-27: the running game is dropped without a word. One would expect a loss, as for New Game;
/// the statistics do not see it. So here and at the tutorial's start.
void playAt(MainWindow& w, const SavedLevels& levels) {
  saveSettings(w, levels);
  startAnotherGame(w);
}

}  // namespace

void choosePlayerLevel1(MainWindow& w) { playAt(w, {1, w.state.savedLevels.computer}); }
void choosePlayerLevel2(MainWindow& w) { playAt(w, {2, w.state.savedLevels.computer}); }
void chooseComputerLevel1(MainWindow& w) { playAt(w, {w.state.savedLevels.player, 1}); }
void chooseComputerLevel2(MainWindow& w) { playAt(w, {w.state.savedLevels.player, 2}); }

}  // namespace mevracard
