#include "platform/dots.h"

#include <algorithm>
#include <array>

namespace mevracard {

namespace {

Dots between(int left, int top, int right, int bottom) {
  return {left, top, right - left, bottom - top};
}

}  // namespace

Dots Dots::grown(int sides, int ends) const {
  return {left - sides, top - ends, width + 2 * sides, height + 2 * ends};
}

bool Dots::holds(int x, int y) const {
  return x >= left && x < right() && y >= top && y < bottom();
}

bool Dots::holds(const Dots& other) const {
  return !other.empty() && other.left >= left && other.right() <= right() && other.top >= top &&
         other.bottom() <= bottom();
}

bool Dots::meets(const Dots& other) const { return !within(other).empty(); }

Dots Dots::within(const Dots& other) const {
  return between(std::max(left, other.left), std::max(top, other.top),
                 std::min(right(), other.right()), std::min(bottom(), other.bottom()));
}

Dots Dots::joined(const Dots& other) const {
  if (empty() || other.empty()) return empty() ? other : *this;
  return between(std::min(left, other.left), std::min(top, other.top),
                 std::max(right(), other.right()), std::max(bottom(), other.bottom()));
}

Dots Dots::beside(const Dots& other) const {
  if (!meets(other)) return *this;
  const std::array pieces{
      between(left, top, right(), other.top), between(left, other.bottom(), right(), bottom()),
      between(left, top, other.left, bottom()), between(other.right(), top, right(), bottom())};
  const auto area = [](const Dots& d) { return d.empty() ? 0 : d.width * d.height; };
  return *std::max_element(pieces.begin(), pieces.end(),
                           [&](const Dots& a, const Dots& b) { return area(a) < area(b); });
}

}  // namespace mevracard
