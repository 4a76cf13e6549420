#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "platform/control.h"

namespace mevracard {

/// A line or shape as it is painted: logical pixels with their fractions.
struct Graphic {
  bool line = false;  ///< from `from` to `to`; else a shape in the box that the two span
  QPointF from, to;
  ShapeForm form = ShapeForm::Rectangle;
  bool outlined = true, filled = false, dashed = false;
  QColor edge, fill;
  double width = 1;

  bool operator==(const Graphic&) const = default;
  /// The rectangle that all of it lies in, the border's width included.
  [[nodiscard]] QRectF bounds() const;
};

[[nodiscard]] Graphic graphicOf(const Line& line);
[[nodiscard]] Graphic graphicOf(const Shape& shape);

/// Paints it anti-aliased; what is upright or level lies on whole pixels of the device, so that it
/// is crisp at every device pixel ratio.
void paint(QPainter& painter, const Graphic& graphic);

/// Paints a border of one pixel just inside a rectangle.
void paintBorder(QPainter& painter, const QRect& rect, const QColor& color);

}  // namespace mevracard
