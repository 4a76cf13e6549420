#pragma once

#include <random>

namespace mevracard {

/// Uniform numbers in [0, 1), the same sequence for the same seed on every machine.
class SeededRandom {
 public:
  void seed(double value);
  [[nodiscard]] double next();

 private:
  std::mt19937_64 engine_;
};

}  // namespace mevracard
