#pragma once

#include <algorithm>

#include "platform/control.h"
#include "platform/dots.h"

namespace mevracard {

constexpr double twipsPerInch = 1440;
constexpr double pixelsPerInch = 96;  ///< of the design; a screen may have several dots a pixel
constexpr double twipsPerDesignPixel = twipsPerInch / pixelsPerInch;

/// How many times their design size panels, small windows and boxes have on a screen of so many
/// pixels: beyond this size they grow as the table does, which has to fit both ways.
constexpr double growthOn(double screenWidth, double screenHeight) {
  constexpr double usualWidth = 1600, usualHeight = 1200;
  return std::max(1.0, std::min(screenWidth / usualWidth, screenHeight / usualHeight));
}

/// How a window's twips lie on the dots of its screen: one zoom and one origin. Here
/// the places of controls are rounded to dots, so that every edge is crisp. A place absurdly far
/// away is drawn in to one that still counts in whole numbers.
struct View {
  double dotsPerTwip = 1 / twipsPerDesignPixel;
  double left = 0, top = 0;  ///< dots from the window's corner to the origin

  bool operator==(const View&) const = default;

  [[nodiscard]] double x(double twips) const;
  [[nodiscard]] double y(double twips) const;
  /// A length that is given in pixels of the design, such as the width of a border.
  [[nodiscard]] double length(double pixels) const;
  /// A border that shows is at least one dot wide.
  [[nodiscard]] int border(double pixels) const;
  /// Boxes of one size, such as cards, keep one size wherever they stand.
  [[nodiscard]] Dots box(const Box& box) const { return this->box(box, box.left, box.top); }
  /// The box elsewhere.
  [[nodiscard]] Dots box(const Box& box, double atLeft, double atTop) const;

  /// What an upright or level line covers, or the box around a slanted one. Lines that meet in a
  /// corner end with one another.
  [[nodiscard]] Dots line(const Line& line) const;

  /// The design at its own size, from the window's corner; `ratio` is the dots of a pixel.
  [[nodiscard]] static View plain(double ratio);
  /// All of `whole` in the middle of a window of this many dots: at its own size where the window
  /// has room for `headroom` times that, else smaller, never larger. So what the player makes
  /// larger is seen to grow.
  [[nodiscard]] static View fitted(const Box& whole, double width, double height, double ratio,
                                   double headroom = 1);
};

/// Whether a line is upright or level.
[[nodiscard]] bool isStraight(const Line& line);

}  // namespace mevracard
