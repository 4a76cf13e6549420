#pragma once

#include <cstdint>

namespace mevracard::simulate {

/// One number for a whole sequence of small ones (0 to 255), sensitive to each and to their order.
class Signature {
 public:
  void fold(int value) {
    hash_ ^= static_cast<std::uint64_t>(value);
    hash_ *= 0x100000001b3U;
  }
  [[nodiscard]] std::uint64_t value() const { return hash_; }

 private:
  std::uint64_t hash_ = 0xcbf29ce484222325U;
};

}  // namespace mevracard::simulate
