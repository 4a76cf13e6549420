#include "platform/view.h"

#include <algorithm>
#include <cmath>

namespace mevracard {

namespace {

double drawnIn(double dots) {
  constexpr double farAway = 100000;
  return std::isnan(dots) ? 0 : std::clamp(dots, -farAway, farAway);
}

int dot(double place) { return static_cast<int>(std::lround(place)); }

/// The zoom at which so many twips fill so many dots; what has no size sets no limit.
double zoomToFill(double dots, double twips) { return twips > 0 ? dots / twips : 1e9; }

/// The origin at which the middle of something lies in the middle of its room.
double originFor(double room, double start, double size, double zoom) {
  return drawnIn(std::round((room - size * zoom) / 2 - start * zoom));
}

}  // namespace

double View::x(double twips) const { return drawnIn(left + twips * dotsPerTwip); }
double View::y(double twips) const { return drawnIn(top + twips * dotsPerTwip); }

double View::length(double pixels) const {
  return drawnIn(pixels * twipsPerDesignPixel * dotsPerTwip);
}

int View::border(double pixels) const { return std::max(1, dot(length(pixels))); }

Dots View::box(const Box& box, double atLeft, double atTop) const {
  return {dot(x(atLeft)), dot(y(atTop)), std::max(0, dot(drawnIn(box.width * dotsPerTwip))),
          std::max(0, dot(drawnIn(box.height * dotsPerTwip)))};
}

Dots View::line(const Line& line) const {
  const int width = border(line.borderWidth);
  const auto [west, east] = std::minmax({x(line.x1), x(line.x2)});
  const auto [north, south] = std::minmax({y(line.y1), y(line.y2)});
  // The corners of a slanted line stand out.
  const double out = isStraight(line) ? width / 2.0 : width + 1;
  const auto start = [out](double from) { return dot(from - out); };
  const auto length = [&](double from, double to) {
    return start(to) - start(from) + dot(2 * out);
  };
  return {start(west), start(north), length(west, east), length(north, south)};
}

View View::plain(double ratio) { return {ratio / twipsPerDesignPixel, 0, 0}; }

View View::fitted(const Box& whole, double width, double height, double ratio, double headroom) {
  const double own = ratio / twipsPerDesignPixel;
  const double zoom = std::min({own, zoomToFill(width, whole.width * headroom),
                                zoomToFill(height, whole.height * headroom)});
  return {zoom, originFor(width, whole.left, whole.width, zoom),
          originFor(height, whole.top, whole.height, zoom)};
}

bool isStraight(const Line& line) { return line.x1 == line.x2 || line.y1 == line.y2; }

}  // namespace mevracard
