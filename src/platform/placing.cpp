#include "platform/placing.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace mevracard {

namespace {

/// A side of a place, seen along one direction.
struct Span {
  int start, length;
};

Span across(const Dots& dots) { return {dots.left, dots.width}; }
Span down(const Dots& dots) { return {dots.top, dots.height}; }

/// Where a window may have to begin to cover least: what it covers changes evenly between the
/// places where one of its edges meets an edge of something else.
template <typename Side>
std::set<int> turningPoints(const Dots& wanted, const Dots& room, const ClearGroups& clear,
                            Side side) {
  const Span whole = side(room);
  const int last = std::max(whole.start, whole.start + whole.length - side(wanted).length);
  std::set<int> points;
  const auto add = [&](int point) { points.insert(std::clamp(point, whole.start, last)); };
  add(side(wanted).start);
  for (const auto& group : clear) {
    for (const Dots& dots : group) {
      const Span span = side(dots);
      for (const int edge : {span.start, span.start + span.length}) {
        add(edge);
        add(edge - side(wanted).length);
      }
    }
  }
  return points;
}

}  // namespace

std::vector<long> coveredBy(const Dots& place, const ClearGroups& clear) {
  std::vector<long> covered;
  for (const auto& group : clear) {
    long dots = 0;
    for (const Dots& kept : group) {
      const Dots common = kept.within(place);
      if (!common.empty()) dots += long{common.width} * common.height;
    }
    covered.push_back(dots);
  }
  return covered;
}

Dots clearPlace(const Dots& wanted, const Dots& room, const ClearGroups& clear) {
  const auto cost = [&](const Dots& place) {
    std::vector<long> all = coveredBy(place, clear);
    all.push_back(std::abs(place.left - wanted.left) + std::abs(place.top - wanted.top));
    return all;
  };
  Dots best = placeInside(wanted, room);
  std::vector<long> least = cost(best);
  const std::set<int> tops = turningPoints(wanted, room, clear, down);
  for (const int left : turningPoints(wanted, room, clear, across)) {
    for (const int top : tops) {
      const Dots place{left, top, wanted.width, wanted.height};
      if (std::vector<long> here = cost(place); here < least) {
        least = std::move(here);
        best = place;
      }
    }
  }
  return best;
}

Dots placeInside(Dots wanted, const Dots& room) {
  const int right = std::max(room.left, room.right() - wanted.width);
  const int bottom = std::max(room.top, room.bottom() - wanted.height);
  wanted.left = std::clamp(wanted.left, room.left, right);
  wanted.top = std::clamp(wanted.top, room.top, bottom);
  return wanted;
}

}  // namespace mevracard
