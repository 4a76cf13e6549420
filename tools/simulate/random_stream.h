#pragma once

#include <cstdint>

namespace mevracard::simulate {

/// A stream of random numbers that costs next to nothing to begin; the same on every machine.
class RandomStream {
 public:
  explicit RandomStream(std::uint64_t seed) : state_(seed) {}

  [[nodiscard]] std::uint64_t next() {
    state_ += 0x9e3779b97f4a7c15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30U)) * 0xbf58476d1ce4e5b9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebU;
    return mixed ^ (mixed >> 31U);
  }
  /// 0 to n - 1, for small n.
  [[nodiscard]] int below(int n) {
    return static_cast<int>((next() >> 32U) * static_cast<std::uint64_t>(n) >> 32U);
  }
  /// In [0, 1).
  [[nodiscard]] double fraction() { return static_cast<double>(next() >> 11U) * 0x1.0p-53; }

 private:
  std::uint64_t state_;
};

}  // namespace mevracard::simulate
