#pragma once

#include <QKeyEvent>

namespace mevracard {

/// The code of a key, 0 for one that the game has no use for.
[[nodiscard]] int keyCodeOf(const QKeyEvent& event);

}  // namespace mevracard
