#pragma once

#include <vector>

#include "platform/dots.h"

namespace mevracard {

/// What a window is not to lie on, in groups: the least bit of one group weighs more than all of
/// those behind it.
using ClearGroups = std::vector<std::vector<Dots>>;

/// How much of each group a window at this place covers.
[[nodiscard]] std::vector<long> coveredBy(const Dots& place, const ClearGroups& clear);

/// The place inside `room`, of the size of `wanted`, that covers as little as possible, and of all
/// such places the nearest to `wanted`.
[[nodiscard]] Dots clearPlace(const Dots& wanted, const Dots& room, const ClearGroups& clear);

/// The nearest place to `wanted` inside `room`; of what is too large for it, the upper left corner
/// lies inside.
[[nodiscard]] Dots placeInside(Dots wanted, const Dots& room);

}  // namespace mevracard
