#include "script/procedures.h"

#include <array>

#include "ai/evaluation.h"
#include "game/rules.h"
#include "play/choice_answers.h"
#include "play/computer_turn.h"
#include "play/demonstrated_move.h"
#include "play/ending.h"
#include "play/new_game.h"
#include "play/opening.h"
#include "play/passing.h"
#include "play/placement.h"
#include "play/player_input.h"
#include "play/size_panel.h"
#include "play/status.h"
#include "play/table_size.h"
#include "play/tips.h"
#include "play/tutorial_end.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

struct Plain {
  std::string_view name;
  void (*run)(MainWindow& w);
};

void layPlayCard(MainWindow& w) { layCard(w, w.state.lastOffer.card, Side::Computer); }
void uncoverPlayCard(MainWindow& w) { w.card(w.state.lastOffer.card).uncover(); }
void glidePlayCard(MainWindow& w) { glideCard(w, w.state.lastOffer.card); }
void openGame(MainWindow& w) { (void)openWithDoubleZero(w); }

void showEnd(MainWindow& w) {
  w.game.ending.over = true;
  showResult(w);
}

/// Called by hand with cards left, which play never does, it hands the turn back to the player.
void endWithComputersHand(MainWindow& w) {
  if (w.game.counts.cardsLeft[Side::Computer] == 0) return computerHasWon(w);
  w.game.ending.deadlock = false;
  announce(w, Announcement::YourTurn);
  showStatusInFront(w);
}

constexpr std::array plain{
    Plain{"Form_Load", startGame},
    Plain{"Awal", deal},
    Plain{"discard00", openGame},
    Plain{"Cocok", layPlayCard},
    Plain{"moving", glidePlayCard},
    Plain{"player_akhir", afterPlayersCard},
    Plain{"computer_akhir", endWithComputersHand},
    Plain{"deadlock", deadlock},
    Plain{"Hitung", showSums},
    Plain{"akhirmain", showEnd},
    Plain{"komputer", takeComputersTurn},
    Plain{"lastmove", closeTurn},
    Plain{"BukaCover", uncoverPlayCard},
    Plain{"gnr", appendGeneralTip},
    Plain{"MouseMv", aimPointer},
    Plain{"how_hilang", endTutorial},
    Plain{"kiri_Click", chooseLeftBottom},
    Plain{"kanan_Click", chooseRightTop},
    Plain{"canc_Click", cancelChoice},
    Plain{"mulai_Click", pressDiscard},
    Plain{"cmdscreen_Click", closeSizePanel},
};

std::string evaluationText(const Game& game) {
  switch (sameNumberVerdict(game)) {
    case SameNumberVerdict::WouldLose:
      return "1";
    case SameNumberVerdict::Harmless:
      return "0";
    case SameNumberVerdict::NoCard:
      break;
  }
  return "empty";
}

/// The slots from `lo` to `hi`, none if they are the wrong way round.
std::span<const int> slotsBetween(int lo, int hi) {
  const int count = hi < lo ? 0 : hi - lo + 1;
  return std::span(allSlots).subspan(static_cast<std::size_t>(lo), static_cast<std::size_t>(count));
}

void expectArguments(std::string_view name, std::span<const std::string_view> arguments,
                     std::size_t count) {
  if (arguments.size() == count) return;
  throw ScriptError(excerpt(name) + " takes " + (count == 0 ? "no" : std::to_string(count)) +
                    " arguments");
}

}  // namespace

Procedure procedureNamed(std::string_view name, std::span<const std::string_view> arguments) {
  for (const auto& procedure : plain) {
    if (procedure.name != name) continue;
    expectArguments(name, arguments, 0);
    return [run = procedure.run](MainWindow& w) -> std::optional<std::string> {
      run(w);
      return std::nullopt;
    };
  }
  if (name == "HitungMevra") {
    expectArguments(name, arguments, 0);
    return [](MainWindow& w) { return evaluationText(w.game); };
  }
  if (name == "noPlayableCard") {
    expectArguments(name, arguments, 2);
    constexpr Range slot{0, cardCount - 1};
    return [lo = parseInteger(arguments[0], slot), hi = parseInteger(arguments[1], slot)](
               MainWindow& w) { return flagText(noneFits(w.game, slotsBetween(lo, hi))); };
  }
  if (name == "ScreenScale") {
    expectArguments(name, arguments, 1);
    return [factor = parseDecimal(arguments[0], -1e6, 1e6)](
               MainWindow& w) -> std::optional<std::string> {
      rescaleTable(w, factor);
      return std::nullopt;
    };
  }
  throw ScriptError("no procedure " + excerpt(name));
}

}  // namespace mevracard::script
