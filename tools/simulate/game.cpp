#include "simulate/game.h"

#include <stdexcept>

#include "game/rules.h"
#include "simulate/chain_log.h"
#include "simulate/table.h"

namespace mevracard::simulate {

namespace {

/// More than any game needs: 28 cards, as many choices, and a pass with its answer for each.
constexpr int mostEvents = 200;

void count(Figures& figures, const std::vector<LaidCard>& laid, Signature& signature) {
  for (const LaidCard& card : laid) {
    ++(card.slot <= playerLast ? figures.player : figures.computer).cards;
    signature.fold(card.slot);
    signature.fold(static_cast<int>(card.end));
    signature.fold(card.opened);
  }
}

void countResult(Figures& figures, const MainWindow& w, Signature& signature) {
  const bool won = w.akhir[5].caption == "You win";
  const bool deadlock = w.akhir[0].visible;
  ++(won ? figures.wins : figures.losses);
  figures.deadlocks = deadlock ? 1 : 0;
  figures.computer.passes = w.state.sisa[2];
  figures.player.passes = w.state.sisa[3];
  figures.cardsOnTable = 1 + w.state.lina + w.state.linb;
  signature.fold(won ? 1 : 0);
  signature.fold(deadlock ? 1 : 0);
  signature.fold(w.state.sisa[2]);
  signature.fold(w.state.sisa[3]);
}

}  // namespace

void Figures::add(const Figures& other) {
  wins += other.wins;
  losses += other.losses;
  deadlocks += other.deadlocks;
  player.passes += other.player.passes;
  player.cards += other.player.cards;
  computer.passes += other.computer.passes;
  computer.cards += other.computer.cards;
  cardsOnTable += other.cardsOnTable;
}

Figures playGame(const Request& request, int number, Signature& signature) {
  const std::uint64_t base = RandomStream(request.seed).next();
  Table table(request, base + static_cast<std::uint64_t>(number));
  MainWindow& w = table.window();
  ChainLog chain;
  Figures figures;
  for (int events = 0; w.state.theend == 0; ++events) {
    if (events == mostEvents) throw std::logic_error("the game does not end");
    table.goOn();
    count(figures, chain.cardsLaid(w), signature);
  }
  countResult(figures, w, signature);
  return figures;
}

Figures playGames(const Request& request, Signature& signature) {
  Figures all;
  for (int number = 0; number < request.games; ++number) {
    try {
      all.add(playGame(request, number, signature));
    } catch (const std::exception& error) {
      throw std::runtime_error("game " + std::to_string(number) + ": " + error.what());
    }
  }
  return all;
}

}  // namespace mevracard::simulate
