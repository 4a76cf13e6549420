#pragma once

namespace mevracard {

/// Whether the player's desktop asks programs to go without animations.
[[nodiscard]] bool motionIsReduced();

}  // namespace mevracard
