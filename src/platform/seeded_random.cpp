#include "platform/seeded_random.h"

#include <bit>
#include <cstdint>

namespace mevracard {

void SeededRandom::seed(double value) { engine_.seed(std::bit_cast<std::uint64_t>(value)); }

double SeededRandom::next() {
  // The top 53 bits make every double of the grid equally likely; 1 is never reached.
  return static_cast<double>(engine_() >> 11U) * 0x1.0p-53;
}

}  // namespace mevracard
