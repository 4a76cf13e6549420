#include "platform/qt/placing.h"

#include <algorithm>
#include <tuple>

namespace mevracard {

QPoint clearPlace(QSize size, const QRect& room, const QRect& around,
                  const std::vector<QRect>& clear) {
  constexpr int step = 8;  // pixels
  QRect place(QPoint(), size);
  place.moveCenter(around.center());
  const QPoint middle = placeInside(size, room, place.topLeft());
  QPoint best = middle;
  auto least = std::make_tuple(1LL << 60, 0);
  for (int y = room.top(); y <= std::max(room.top(), room.bottom() - size.height()); y += step) {
    for (int x = room.left(); x <= std::max(room.left(), room.right() - size.width()); x += step) {
      place.moveTopLeft({x, y});
      long long covered = 0;
      for (const QRect& rect : clear) {
        covered += 1LL * (rect & place).width() * (rect & place).height();
      }
      const auto cost = std::make_tuple(covered, (place.topLeft() - middle).manhattanLength());
      if (cost >= least) continue;
      least = cost;
      best = place.topLeft();
    }
  }
  return best;
}

QPoint placeInside(QSize size, const QRect& room, QPoint wanted) {
  const int right = std::max(room.left(), room.right() - size.width());
  const int bottom = std::max(room.top(), room.bottom() - size.height());
  return {std::clamp(wanted.x(), room.left(), right), std::clamp(wanted.y(), room.top(), bottom)};
}

}  // namespace mevracard
