#include "painting/expectations.h"

#include <QLineF>
#include <algorithm>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "platform/picture.h"
#include "platform/qt/look.h"

namespace mevracard {

namespace {

/// Twips to dots.
struct Scale {
  double zoom, left, top;

  [[nodiscard]] QPointF point(double x, double y) const {
    return {left + x * zoom, top + y * zoom};
  }
};

/// One control, where it must be seen.
struct Sight {
  const Control* control;
  QRectF box;     ///< of a line too
  QLineF line;    ///< of a line
  double border;  ///< dots
};

constexpr int alike = 60;         // of 765
constexpr int thinlyDrawn = 300;  // a line between the dots

bool near(QColor one, QColor other, int tolerance) {
  return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
             std::abs(one.blue() - other.blue()) <=
         tolerance;
}

double distance(const QPointF& point, const QLineF& line) {
  const QPointF way = line.p2() - line.p1();
  const QPointF there = point - line.p1();
  const double share =
      std::clamp(QPointF::dotProduct(way, there) / QPointF::dotProduct(way, way), 0.0, 1.0);
  return QLineF(line.pointAt(share), point).length();
}

class Scene {
 public:
  Scene(const Form& form, const QImage& dots, double ratio, Seen& seen)
      : form_(form), dots_(dots), ratio_(ratio), seen_(seen) {
    const double own = ratio / 15;
    Scale table{own, 0, 0};
    if (const Box* whole = form.whole) {
      table.zoom = std::min({own, dots.width() / (whole->width * form.growth),
                             dots.height() / (whole->height * form.growth)});
      table.left =
          std::round((dots.width() - whole->width * table.zoom) / 2 - whole->left * table.zoom);
      table.top =
          std::round((dots.height() - whole->height * table.zoom) / 2 - whole->top * table.zoom);
    }
    for (const int rank : {0, 1, 2}) {
      for (const Control* control : form.controls) {
        const auto* label =
            control->kind == ControlKind::Label ? static_cast<const Label*>(control) : nullptr;
        const int ownRank = isWidget(*control) ? 2 : label != nullptr && label->foremost ? 1 : 0;
        if (ownRank == rank) add(*control, control->pinned ? Scale{own, 0, 0} : table);
      }
    }
  }

  void check() {
    for (std::size_t i = 0; i < sights_.size(); ++i) {
      SCOPED_TRACE(sights_[i].control->fullName());
      if (checkOne(sights_[i], i)) seen_.controls.insert(nameOf(*sights_[i].control));
    }
  }

 private:
  void add(const Control& control, const Scale& scale) {
    if (!control.visible) return;
    Sight sight{&control, {}, {}, 1};
    if (control.kind == ControlKind::Line) {
      const auto& line = static_cast<const Line&>(control);
      sight.line = {scale.point(line.x1, line.y1), scale.point(line.x2, line.y2)};
      sight.border = std::max(1.0, line.borderWidth * 15 * scale.zoom);
    } else {
      const auto& box = static_cast<const Box&>(control);
      sight.box = {scale.point(box.left, box.top), QSizeF(box.width, box.height) * scale.zoom};
      if (control.kind == ControlKind::Shape) {
        sight.border =
            std::max(1.0, static_cast<const Shape&>(control).borderWidth * 15 * scale.zoom);
      }
    }
    if (control.kind == ControlKind::Button && static_cast<const Button&>(control).keysOnly) return;
    sights_.push_back(sight);
    if (control.kind != ControlKind::Frame) return;
    const QPointF corner(std::round(sight.box.left()), std::round(sight.box.top()));
    for (const Control* child : static_cast<const Frame&>(control).children) {
      add(*child, {scale.zoom, corner.x(), corner.y()});
    }
  }

  [[nodiscard]] bool hides(const Sight& front, const QPointF& point) const {
    const bool in = grown(front.box, front.border + 2).contains(point);
    switch (front.control->kind) {
      case ControlKind::Line:
        return distance(point, front.line) <= front.border / 2 + 2;
      case ControlKind::Frame:
        return grown(front.box, front.box.width() / 8 + 1).contains(point);
      case ControlKind::Label:
        return in && (isWidget(*front.control) || static_cast<const Label*>(front.control)->opaque);
      case ControlKind::Shape:
        return in && (static_cast<const Shape*>(front.control)->filled ||
                      !grown(front.box, -front.border - 2).contains(point));
      default:
        return in;
    }
  }
  static QRectF grown(const QRectF& rect, double by) { return rect.adjusted(-by, -by, by, by); }

  /// Whether nothing in front of the sight at `index` stands there.
  [[nodiscard]] bool isFree(const QPointF& point, std::size_t index) const {
    return dots_.rect().contains(point.toPoint()) &&
           std::none_of(sights_.begin() + static_cast<std::ptrdiff_t>(index) + 1, sights_.end(),
                        [&](const Sight& front) { return hides(front, point); });
  }

  [[nodiscard]] bool has(const QPointF& point, const QColor& color, int around,
                         int tolerance) const {
    for (int y = -around; y <= around; ++y) {
      for (int x = -around; x <= around; ++x) {
        const QPoint dot(static_cast<int>(std::floor(point.x())) + x,
                         static_cast<int>(std::floor(point.y())) + y);
        if (dots_.valid(dot) && near(dots_.pixelColor(dot), color, tolerance)) return true;
      }
    }
    return false;
  }

  /// Whether any of these points can be seen; all that can must have the colour.
  bool all(const std::vector<QPointF>& points, const QColor& color, std::size_t index,
           int tolerance = alike) const {
    const int around = 1 + static_cast<int>(ratio_);
    bool seen = false;
    for (const QPointF& point : points) {
      if (!isFree(point, index)) continue;
      seen = true;
      EXPECT_TRUE(has(point, color, around, tolerance))
          << color.name().toStdString() << " at " << point.x() << ", " << point.y();
    }
    return seen;
  }

  static std::vector<QPointF> inside(const QRectF& box, std::initializer_list<QPointF> shares) {
    std::vector<QPointF> points;
    for (const QPointF& share : shares) {
      points.emplace_back(box.left() + share.x() * box.width(),
                          box.top() + share.y() * box.height());
    }
    return points;
  }

  bool checkOne(const Sight& sight, std::size_t index) {
    switch (sight.control->kind) {
      case ControlKind::Line:
        return checkLine(sight, static_cast<const Line&>(*sight.control), index);
      case ControlKind::Shape:
        return checkShape(sight, static_cast<const Shape&>(*sight.control), index);
      case ControlKind::Frame:
        return checkCard(sight, static_cast<const Frame&>(*sight.control), index);
      case ControlKind::Label:
        return checkLabel(sight, static_cast<const Label&>(*sight.control), index);
      case ControlKind::Button: {
        const auto& button = static_cast<const Button&>(*sight.control);
        return !textDots(sight.box, button.foreColor, button.backColor, index).isEmpty();
      }
      case ControlKind::ScrollBar:
        return !textDots(sight.box, {}, {255, 255, 255}, index).isEmpty();
    }
    return false;
  }

  bool checkLine(const Sight& sight, const Line& line, std::size_t index) {
    std::vector<QPointF> points;
    for (double share = 0.05; share < 1; share += 0.1) points.push_back(sight.line.pointAt(share));
    const bool thin = !isStraight(line) && sight.border < 3;
    return all(points, toColor(line.borderColor), index, thin ? thinlyDrawn : alike);
  }

  bool checkShape(const Sight& sight, const Shape& shape, std::size_t index) {
    bool seen = false;
    if (shape.filled) {
      seen = all(inside(sight.box, {{0.5, 0.5}, {0.3, 0.3}, {0.7, 0.3}, {0.3, 0.7}, {0.88, 0.5}}),
                 toColor(shape.fillColor), index);
    }
    // What is drawn on a card ends with it.
    if (!shape.outlined || shape.dashed || shape.parent != nullptr) return seen || shape.dashed;
    return all(inside(sight.box, {{0, 0.62}, {1, 0.62}, {0.5, 0}, {0.5, 1}}),
               toColor(shape.borderColor), index) ||
           seen;
  }

  bool checkCard(const Sight& sight, const Frame& frame, std::size_t index) {
    const FrameLook look(frame, {0, 0, static_cast<int>(sight.box.width()), 1}, View());
    const bool plain = look.mark == look.backColor;
    const QColor back = toColor(frame.backColor);
    all(inside(sight.box, {{0, 0.3}, {0.99, 0.3}, {0.5, 0}, {0.5, 0.99}}),
        plain ? back.darker(400) : toColor(look.mark), index);
    return all(inside(sight.box, {{0.5, 0.12}, {0.15, 0.3}, {0.85, 0.3}, {0.5, 0.93}}), back, index,
               0);
  }

  /// The box around the dots of a text, which are those nearer to its colour than to the ground's.
  [[nodiscard]] QRect textDots(const QRectF& box, Color text, Color ground,
                               std::size_t index) const {
    QRect found;
    const auto share = [](QColor dot, QColor color) {
      return std::abs(dot.red() - color.red()) + std::abs(dot.green() - color.green()) +
             std::abs(dot.blue() - color.blue());
    };
    const QRect area = box.toRect() & dots_.rect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        const QColor dot = dots_.pixelColor(x, y);
        if (share(dot, toColor(text)) >= share(dot, toColor(ground))) continue;
        if (isFree(QPointF(x, y), index)) found |= QRect(x, y, 1, 1);
      }
    }
    return found;
  }

  bool checkLabel(const Sight& sight, const Label& label, std::size_t index) {
    const double inset = label.bordered ? 2 * ratio_ : 0;
    const QRectF inner = grown(sight.box, -inset);
    const Color ground = label.opaque ? label.backColor : form_.backColor;
    const bool free = isFree(sight.box.center(), index) && isFree(inner.topLeft(), index) &&
                      isFree(inner.bottomRight(), index) && isFree(inner.topRight(), index) &&
                      isFree(inner.bottomLeft(), index);
    bool seen = false;
    if (label.opaque && !isWidget(label)) {
      seen = all(inside(grown(inner, -1), {{0, 0}, {0.99, 0.99}}), toColor(ground), index);
    }
    if (label.bordered)
      all(inside(sight.box, {{0, 0.5}, {0.5, 0}, {1, 0.5}, {0.5, 1}}), Qt::black, index);
    if (label.caption.find_first_not_of(" \n\r") == std::string::npos) return seen;
    const QRect text = textDots(inner, label.foreColor, ground, index);
    if (!free) return !text.isEmpty();
    EXPECT_GE(text.height(), 6 * ratio_);
    if (label.alignment == Alignment::Centre) {
      EXPECT_NEAR(QRectF(text).center().x(), sight.box.center().x(), 2 * ratio_ + 1);
      EXPECT_NEAR(QRectF(text).center().y(), sight.box.center().y(), 3 * ratio_ + 1);
    }
    if (label.parent != nullptr && label.backColor == label.parent->backColor) {
      checkNumber(sight, label.caption);
    }
    return !text.isEmpty();
  }

  /// The same number looks the same on every card.
  void checkNumber(const Sight& sight, const std::string& caption) {
    const QRect box(QPointF(std::round(sight.box.left()), std::round(sight.box.top())).toPoint(),
                    sight.box.size().toSize());
    const QImage number = dots_.copy(box);
    EXPECT_EQ(seen_.numbers.try_emplace(caption, number).first->second, number);
  }

  const Form& form_;
  const QImage& dots_;
  double ratio_;
  Seen& seen_;
  std::vector<Sight> sights_;  ///< back to front
};

}  // namespace

std::string nameOf(const Control& control) {
  return control.name.starts_with("luar") ? std::string(control.name) : control.fullName();
}

void expectPainted(const Form& form, const QImage& dots, double ratio, Seen& seen) {
  Scene(form, dots, ratio, seen).check();
}

}  // namespace mevracard
