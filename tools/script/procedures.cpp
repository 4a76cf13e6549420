#include "script/procedures.h"

#include <array>

#include "ai/evaluation.h"
#include "ai/komputer.h"
#include "ai/passing.h"
#include "flow/new_game.h"
#include "flow/player_input.h"
#include "flow/same_number_choice.h"
#include "game/ending.h"
#include "game/opening.h"
#include "game/placement.h"
#include "game/rules.h"
#include "guide/tips.h"
#include "guide/tutorial.h"
#include "guide/tutorial_end.h"
#include "script/values.h"
#include "ui/card_cover.h"
#include "ui/screen_panel.h"
#include "ui/screen_scale.h"

namespace mevracard::script {

namespace {

struct Plain {
  std::string_view name;
  void (*run)(MainWindow& w);
};

constexpr std::array<Plain, 21> plain{{
    {"Form_Load", Form_Load},
    {"Awal", Awal},
    {"discard00", discard00},
    {"Cocok", Cocok},
    {"moving", moving},
    {"player_akhir", player_akhir},
    {"computer_akhir", computer_akhir},
    {"deadlock", deadlock},
    {"Hitung", Hitung},
    {"akhirmain", akhirmain},
    {"komputer", komputer},
    {"lastmove", lastmove},
    {"BukaCover", BukaCover},
    {"gnr", gnr},
    {"MouseMv", MouseMv},
    {"how_hilang", how_hilang},
    {"kiri_Click", kiri_Click},
    {"kanan_Click", kanan_Click},
    {"canc_Click", canc_Click},
    {"mulai_Click", mulai_Click},
    {"cmdscreen_Click", cmdscreen_Click},
}};

std::string evaluationText(const GameState& s) {
  const std::optional<int> result = HitungMevra(s);
  return result ? std::to_string(*result) : "empty";
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
    return [](MainWindow& w) { return evaluationText(w.state); };
  }
  if (name == "noPlayableCard") {
    expectArguments(name, arguments, 2);
    constexpr Range slot{0, cardCount - 1};
    return [lo = parseInteger(arguments[0], slot), hi = parseInteger(arguments[1], slot)](
               MainWindow& w) { return std::to_string(noPlayableCard(w.state, lo, hi)); };
  }
  if (name == "ScreenScale") {
    expectArguments(name, arguments, 1);
    return [factor = parseDecimal(arguments[0], -1e6, 1e6)](
               MainWindow& w) -> std::optional<std::string> {
      ScreenScale(w, factor);
      return std::nullopt;
    };
  }
  throw ScriptError("no procedure " + excerpt(name));
}

}  // namespace mevracard::script
