#pragma once

/// The time of this whole process, toolkit included: it stands still but for what is added here, so
/// that a run takes as long as its events do and the same seed meets the same times.
namespace mevracard::monkey {

void addTime(int milliseconds);
/// Milliseconds since the start.
[[nodiscard]] int timeNow();

}  // namespace mevracard::monkey
