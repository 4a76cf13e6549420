// How fast the program plays. Wanted in a release build on one core: 20,000 whole games a second at
// either level, and 20 microseconds at most for a turn of the tactical computer.
#include <vector>

#include <benchmark/benchmark.h>

#include "game/rules.h"
#include "play/computer_turn.h"
#include "play/table_size.h"
#include "simulate/game.h"
#include "simulate/table.h"

namespace {

using namespace mevracard;
using namespace mevracard::simulate;

void wholeGames(benchmark::State& run) {
  Request request;
  request.level = static_cast<int>(run.range(0));
  Signature signature;
  int number = 0;
  for (auto _ : run) benchmark::DoNotOptimize(playGame(request, number++, signature));
  run.SetItemsProcessed(run.iterations());
}
BENCHMARK(wholeGames)->ArgName("level")->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

/// States of random games in which the computer is to lay a card.
std::vector<Game> computersTurns(const Request& request, std::size_t count) {
  std::vector<Game> turns;
  for (std::uint64_t seed = 0; turns.size() < count; ++seed) {
    Table table(request, seed);
    for (const MainWindow& w = table.window(); !w.game.ending.over; table.goOn()) {
      if (table.computerIsToMove() && !mustPass(w.game, Side::Computer)) turns.push_back(w.game);
    }
  }
  return turns;
}

/// The copy of the state that puts each position on the table is part of the time.
void computersTurn(benchmark::State& run) {
  Request request;
  request.level = static_cast<int>(run.range(0));
  const auto turns = computersTurns(request, 10'000);
  Table table(request, 0);
  MainWindow& w = table.window();
  std::size_t next = 0;
  for (auto _ : run) {
    w.game = turns[next++ % turns.size()];
    takeComputersTurn(w);
  }
}
BENCHMARK(computersTurn)->ArgName("level")->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

/// One step of the table size there and back: what the program does, without painting.
void screenScale(benchmark::State& run) {
  Table table({}, 0);
  MainWindow& w = table.window();
  for (auto _ : run) {
    scrollTableSize(w, w.sizePanel.bar.value == 99 ? 98 : 99);
    w.present();
  }
}
BENCHMARK(screenScale)->Unit(benchmark::kMicrosecond);

}  // namespace
