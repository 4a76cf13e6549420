#pragma once

#include <QRect>
#include <vector>

namespace mevracard {

/// The place inside `room` at which a window of this size lies on as little as possible of what is
/// to stay clear, and there as near as possible to the middle of `around`.
[[nodiscard]] QPoint clearPlace(QSize size, const QRect& room, const QRect& around,
                                const std::vector<QRect>& clear);

/// The nearest place to `wanted` at which a window of this size lies inside `room`; where it is too
/// large for that, its upper left corner does.
[[nodiscard]] QPoint placeInside(QSize size, const QRect& room, QPoint wanted);

}  // namespace mevracard
