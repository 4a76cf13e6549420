// mevracard-simulate: plays many whole games, every procedure and window included, and prints what
// came of them. Reads from standard input, one a line, blank lines and lines that begin with "#"
// skipped:
//   games N                     1000 if not given
//   level 1|2                   the computer's, 1 if not given
//   seed S                      1 if not given; the same request plays the same games
//   player first|random|greedy  random if not given
//   watch 0|1                   1: the table must be in order after every event; 0 if not given
// A line that it cannot read: "line N: WHY" on standard error, exit status 2. A game that does not
// go on, or a table out of order: one line there, exit status 1. The last line printed is the
// signature: a change of how either side plays, or of who wins, changes it.
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <exception>
#include <iostream>

#include "simulate/game.h"

using namespace mevracard::simulate;

namespace {

void print(const Figures& f, const Request& request, double seconds, const Signature& signature) {
  const auto games = static_cast<double>(request.games);
  std::printf("games %d\n", request.games);
  std::printf("wins %lld\nlosses %lld\ndeadlocks %lld\n", f.wins, f.losses, f.deadlocks);
  std::printf("passes player %lld computer %lld\n", f.player.passes, f.computer.passes);
  std::printf("cards player %lld computer %lld\n", f.player.cards, f.computer.cards);
  std::printf("mean game length %.2f\n", static_cast<double>(f.cardsOnTable) / games);
  std::printf("games a second %.0f\n", games / seconds);
  std::printf("signature 0x%016" PRIx64 "\n", signature.value());
}

int fail(const std::exception& error, int status) {
  std::cerr << error.what() << '\n';
  return status;
}

}  // namespace

int main() {
  Request request;
  try {
    request = readRequest(std::cin);
  } catch (const std::exception& error) {
    return fail(error, 2);
  }
  try {
    Signature signature;
    const auto begun = std::chrono::steady_clock::now();
    const Figures figures = playGames(request, signature);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begun;
    print(figures, request, taken.count(), signature);
  } catch (const std::exception& error) {
    return fail(error, 1);
  }
  return 0;
}
