#pragma once

namespace mevracard {

/// Begins to ask the player's desktop whether programs are to go without animations. The answer may
/// come a moment later; it is no for a desktop that has no such setting.
void askAboutMotion();

/// What the desktop has said so far.
[[nodiscard]] bool motionIsReduced();

}  // namespace mevracard
