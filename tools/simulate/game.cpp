#include "simulate/game.h"

#include <stdexcept>

#include "simulate/chain_log.h"
#include "simulate/table.h"
#include "simulate/table_watch.h"

namespace mevracard::simulate {

namespace {

/// More than any game needs: 28 cards, as many choices, and a pass with its answer for each.
constexpr int mostEvents = 200;

void count(Figures& figures, const std::vector<JoinedCard>& laid, Signature& signature) {
  for (const JoinedCard& card : laid) {
    ++(ownerOf(card.slot) == Side::Player ? figures.player : figures.computer).cards;
    signature.fold(card.slot);
    signature.fold(static_cast<int>(card.end));
    signature.fold(card.opened);
  }
}

void countResult(Figures& figures, const Game& game, Signature& signature) {
  const bool won = game.ending.result == GameResult::Won;
  ++(won ? figures.wins : figures.losses);
  figures.deadlocks = game.ending.deadlock ? 1 : 0;
  figures.computer.passes = game.counts.passes[Side::Computer];
  figures.player.passes = game.counts.passes[Side::Player];
  figures.cardsOnTable = 1 + game.chain.laidAt[End::RightTop] + game.chain.laidAt[End::LeftBottom];
  signature.fold(won ? 1 : 0);
  signature.fold(game.ending.deadlock ? 1 : 0);
  signature.fold(game.counts.passes[Side::Computer]);
  signature.fold(game.counts.passes[Side::Player]);
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
  Met met;
  TableWatch watch(w, met);
  const auto look = [&] {
    const char* broken = request.watch ? watch.complaint() : nullptr;
    if (broken != nullptr) throw std::logic_error(std::string("broken: ") + broken);
  };
  look();
  Figures figures;
  for (int events = 0; !w.game.ending.over; ++events) {
    if (events == mostEvents) throw std::logic_error("the game does not end");
    table.goOn();
    look();
    count(figures, chain.cardsLaid(w), signature);
  }
  countResult(figures, w.game, signature);
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
