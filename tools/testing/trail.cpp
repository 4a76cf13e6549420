#include "testing/trail.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include <unistd.h>

// Only where a sanitizer is linked.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace mevracard::monkey {

namespace {

constexpr unsigned patience = 60;  // seconds
std::uint64_t seed = 0;
std::size_t events = 0;
auto& last = *new std::array<std::string, 20>;  // needed until the very end

void print() {
  std::cerr << "monkey: seed " << seed << ", event " << events << ", after these:\n";
  for (std::size_t i = 1; i <= last.size(); ++i) {
    std::cerr << "  " << last[(events + i) % last.size()] << '\n';
  }
}

}  // namespace

void beginTrail(std::uint64_t ownSeed) {
  seed = ownSeed;
  if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(print);
  std::signal(SIGABRT, [](int) { print(); });
  std::signal(SIGALRM, [](int) { fail("an event is never done with"); });
}

void nextEvent() {
  alarm(patience);
  last[++events % last.size()].clear();
}

void note(const std::string& what) { last[events % last.size()] += what + ' '; }

void fail(const std::string& what) {
  std::cerr << "monkey: " << what << '\n';
  print();
  std::_Exit(1);
}

}  // namespace mevracard::monkey
