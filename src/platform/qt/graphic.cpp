#include "platform/qt/graphic.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "platform/qt/look.h"

namespace mevracard {

namespace {

/// The pixels of the device that a painter paints on, seen from its logical coordinates.
class DeviceGrid {
 public:
  explicit DeviceGrid(const QPainter& painter)
      : toDevice_(painter.deviceTransform()), toLogical_(toDevice_.inverted()) {}

  /// A border's width in whole device pixels, at least one.
  [[nodiscard]] double width(double logical) const {
    return std::max(1.0, std::round(logical * toDevice_.m11()));
  }
  /// The band of `width` device pixels around a line from `from` to `to`, ends included.
  [[nodiscard]] QRectF band(QPointF from, QPointF to, double width) const {
    const QRectF line = QRectF(toDevice_.map(from), toDevice_.map(to)).normalized();
    const QPointF corner(std::round(line.left() - width / 2), std::round(line.top() - width / 2));
    const QSizeF size(std::round(line.width()) + width, std::round(line.height()) + width);
    return toLogical_.mapRect(QRectF(corner, size));
  }
  /// Device pixels in logical ones.
  [[nodiscard]] double logical(double device) const { return device / toDevice_.m11(); }

 private:
  QTransform toDevice_, toLogical_;
};

void paintLine(QPainter& painter, const Graphic& g, const DeviceGrid& grid) {
  const double width = grid.width(g.width);
  const bool upright = g.from.x() == g.to.x();
  const bool level = g.from.y() == g.to.y();
  if (upright || level) {
    painter.fillRect(grid.band(g.from, g.to, width), g.edge);
    return;
  }
  painter.setPen(QPen(g.edge, grid.logical(width), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(g.from, g.to);
}

/// The outline as a path along the middle of the border.
QPainterPath outlineOf(const Graphic& g, const QRectF& middle) {
  QPainterPath path;
  if (g.form == ShapeForm::Ellipse) {
    path.addEllipse(middle);
  } else if (g.form == ShapeForm::RoundedRectangle) {
    const double radius = std::min(middle.width(), middle.height()) / 5;
    path.addRoundedRect(middle, radius, radius);
  } else {
    path.addRect(middle);
  }
  return path;
}

void paintShape(QPainter& painter, const Graphic& g, const DeviceGrid& grid) {
  const double width = g.outlined ? grid.width(g.width) : 0;
  const QRectF outer = grid.band(g.from, g.to, width);
  const double half = grid.logical(width) / 2;
  const QRectF middle = outer.adjusted(half, half, -half, -half);
  painter.setBrush(g.filled ? QBrush(g.fill) : Qt::NoBrush);
  QPen pen(Qt::NoPen);
  if (g.outlined) {
    pen = QPen(g.edge, grid.logical(width), g.dashed ? Qt::DashDotDotLine : Qt::SolidLine);
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setCapStyle(Qt::FlatCap);
  }
  painter.setPen(pen);
  painter.drawPath(outlineOf(g, middle));
}

}  // namespace

QRectF Graphic::bounds() const {
  const double margin = width / 2 + 2;
  return QRectF(from, to).normalized().adjusted(-margin, -margin, margin, margin);
}

Graphic graphicOf(const Line& line) {
  Graphic g;
  g.line = true;
  g.from = {toPixels(line.x1), toPixels(line.y1)};
  g.to = {toPixels(line.x2), toPixels(line.y2)};
  g.edge = toColor(line.borderColor);
  g.width = line.borderWidth;
  return g;
}

Graphic graphicOf(const Shape& shape) {
  Graphic g;
  g.from = {toPixels(shape.left), toPixels(shape.top)};
  g.to = {toPixels(shape.left + shape.width), toPixels(shape.top + shape.height)};
  g.form = shape.form;
  g.outlined = shape.outlined;
  g.filled = shape.filled;
  g.dashed = shape.dashed;
  g.edge = toColor(shape.borderColor);
  g.fill = toColor(shape.fillColor);
  g.width = shape.borderWidth;
  return g;
}

void paint(QPainter& painter, const Graphic& graphic) {
  painter.setRenderHint(QPainter::Antialiasing);
  const DeviceGrid grid(painter);
  if (graphic.line) {
    paintLine(painter, graphic, grid);
  } else {
    paintShape(painter, graphic, grid);
  }
}

void paintBorder(QPainter& painter, const QRect& rect, const QColor& color) {
  const DeviceGrid grid(painter);
  const double width = grid.logical(grid.width(1));
  const QRectF r(rect);
  painter.fillRect(QRectF(r.left(), r.top(), r.width(), width), color);
  painter.fillRect(QRectF(r.left(), r.bottom() - width, r.width(), width), color);
  painter.fillRect(QRectF(r.left(), r.top(), width, r.height()), color);
  painter.fillRect(QRectF(r.right() - width, r.top(), width, r.height()), color);
}

}  // namespace mevracard
