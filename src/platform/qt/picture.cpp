#include "platform/qt/picture.h"

#include <algorithm>
#include <unordered_map>

#include "platform/qt/glides.h"

namespace mevracard {

namespace {

constexpr int labelPadding = 2;  // pixels beside a text that is not centred

QRect toRect(const Dots& dots) { return {dots.left, dots.top, dots.width, dots.height}; }

QRect boxOf(const Box& box, const View& view) { return toRect(view.box(box)); }

QRect spanOf(const Line& line, const View& view) {
  const QPointF from(view.x(line.x1), view.y(line.y1));
  const QPointF to(view.x(line.x2), view.y(line.y2));
  return QRectF(from, to).normalized().toAlignedRect();
}

QRect grown(const QRect& rect, int margin) {
  return rect.adjusted(-margin, -margin, margin, margin);
}

/// Makes a picture, one window or frame at a time.
class Maker {
 public:
  Maker(const Views& views, const Glides& glides, Picture& picture)
      : views_(views), glides_(glides), picture_(picture) {}

  /// `controls` are the parts of `frame`, or of the window if that is null.
  void add(const std::vector<Control*>& controls, const Item* frame) {
    for (auto c = controls.begin(); c != controls.end(); ++c) {
      if (!(*c)->visible || isWidget(**c)) continue;
      Item item;
      item.control = *c;
      item.view = viewOf(**c, frame);
      if (frame != nullptr) item.room = frame->room;
      switch ((*c)->kind) {
        case ControlKind::Label:
          addLabel(item, c + 1, controls.end(), frame);
          break;
        case ControlKind::Frame:
          addFrame(item, static_cast<const Frame&>(**c));
          break;
        case ControlKind::Line:
          item.look = static_cast<const Line&>(**c);
          item.place = spanOf(static_cast<const Line&>(**c), item.view);
          picture_.push_back(item);
          break;
        case ControlKind::Button:  // that only takes keys, or a widget
        case ControlKind::ScrollBar:
          break;
        case ControlKind::Shape:
          item.look = static_cast<const Shape&>(**c);
          item.place = boxOf(static_cast<const Shape&>(**c), item.view);
          picture_.push_back(item);
      }
    }
  }

 private:
  using Controls = std::vector<Control*>::const_iterator;

  [[nodiscard]] View viewOf(const Control& control, const Item* frame) const {
    if (frame == nullptr) return views_.of(control);
    const QPoint corner = frame->place.topLeft();
    return {frame->view.dotsPerTwip, double(corner.x()), double(corner.y())};
  }

  [[nodiscard]] bool isCovered(const Item& label, Controls next, Controls end) const {
    return std::any_of(next, end, [&](const Control* c) {
      if (c->kind != ControlKind::Shape || !c->visible) return false;
      const auto& shape = static_cast<const Shape&>(*c);
      return shape.filled && shape.form == ShapeForm::Rectangle &&
             boxOf(shape, label.view).contains(label.place);
    });
  }

  void addFrame(Item& item, const Frame& frame) {
    const Position at = glides_.placeOf(frame);
    const View& view = item.view;
    item.place = toRect(view.box(frame, at.left, at.top));
    const FrameLook look(frame, item.place);
    item.room = grown(item.place, -look.edge);
    item.look = look;
    picture_.push_back(item);
    add(frame.children, &item);
  }

  void addLabel(Item& item, Controls next, Controls end, const Item* frame) {
    const auto& label = static_cast<const Label&>(*item.control);
    item.look = label;
    item.place = boxOf(label, item.view);
    if (isCovered(item, next, end)) return;
    const int border = label.bordered ? item.view.border(1) : 0;
    const int side = label.alignment == Alignment::Centre ? 0 : item.view.border(labelPadding);
    item.room = item.place.adjusted(side + border, border, -side - border, -border);
    if (!label.opaque) {  // no ground to leave
      if (label.alignment != Alignment::Left) item.room.adjust(-item.place.width(), 0, 0, 0);
      if (label.alignment != Alignment::Right) item.room.adjust(0, 0, item.place.width(), 0);
    }
    if (frame == nullptr) item.room &= QRect(QPoint(), views_.size);
    for (; next != end; ++next) cut(item.room, obstacle(**next, frame));
    picture_.push_back(item);
  }

  /// What in front of a text would hide it, in dots.
  [[nodiscard]] QRect obstacle(const Control& control, const Item* frame) const {
    if (!control.visible) return {};
    const View view = viewOf(control, frame);
    if (control.kind == ControlKind::Line) {
      const auto& line = static_cast<const Line&>(control);
      if (line.x1 != line.x2 && line.y1 != line.y2) return {};
      return grown(spanOf(line, view), view.border(line.borderWidth) / 2);
    }
    const bool solid = control.kind == ControlKind::Label
                           ? static_cast<const Label&>(control).opaque
                           : isWidget(control);
    return solid ? boxOf(static_cast<const Box&>(control), view) : QRect();
  }

  /// Leaves of the room the largest piece that the obstacle does not touch.
  static void cut(QRect& room, const QRect& obstacle) {
    if (!room.intersects(obstacle)) return;
    std::array<QRect, 4> pieces{room, room, room, room};
    pieces[0].setBottom(obstacle.top() - 1);
    pieces[1].setTop(obstacle.bottom() + 1);
    pieces[2].setRight(obstacle.left() - 1);
    pieces[3].setLeft(obstacle.right() + 1);
    const auto area = [](const QRect& r) { return r.isValid() ? r.width() * r.height() : 0; };
    room = *std::max_element(pieces.begin(), pieces.end(),
                             [&](const QRect& a, const QRect& b) { return area(a) < area(b); });
  }

  const Views& views_;
  const Glides& glides_;
  Picture& picture_;
};

}  // namespace

FrameLook::FrameLook(const Frame& frame, const QRect& place)
    : backColor(frame.backColor), mark(frame.backColor), corner(place.width() / 8.0) {
  for (const Control* child : frame.children) {
    if (child->kind != ControlKind::Label) continue;
    const auto& label = static_cast<const Label&>(*child);
    if (label.opaque && label.backColor != backColor) mark = label.backColor;
  }
  edge = std::max(1, place.width() / (mark == backColor ? 32 : 11));
  shadow = std::max(2, place.width() / 8);
}

QRect Item::bounds() const {
  int margin = 0;
  if (const auto* frame = std::get_if<FrameLook>(&look)) margin = frame->shadow;
  if (const auto* line = std::get_if<Line>(&look)) margin = view.border(line->borderWidth) + 1;
  if (const auto* shape = std::get_if<Shape>(&look)) margin = view.border(shape->borderWidth) + 1;
  return grown(place, margin);
}

QRect Views::placeOf(const Box& box) const {
  if (box.parent == nullptr) return boxOf(box, of(box));
  const QPoint corner = placeOf(*box.parent).topLeft();
  return boxOf(box, {of(*box.parent).dotsPerTwip, double(corner.x()), double(corner.y())});
}

bool isWidget(const Control& control) {
  if (control.kind == ControlKind::Button) return !static_cast<const Button&>(control).keysOnly;
  if (control.kind != ControlKind::Label) return control.kind == ControlKind::ScrollBar;
  const auto& label = static_cast<const Label&>(control);
  return label.link || label.scrolls;
}

Picture pictureOf(const Form& form, const Views& views, const Glides& glides) {
  Picture picture;
  picture.reserve(form.controls.size() * 5);
  Maker(views, glides, picture).add(form.controls, nullptr);
  return picture;
}

QRegion difference(const Picture& before, const Picture& after) {
  QRegion region;
  std::unordered_map<const Control*, std::size_t> ranks;
  for (std::size_t i = 0; i < before.size(); ++i) ranks[before[i].control] = i;
  std::vector<std::pair<std::size_t, QRect>> stayed;  // the rank before, back to front
  for (const Item& item : after) {
    const auto found = ranks.find(item.control);
    if (found == ranks.end()) {
      region += item.bounds();
      continue;
    }
    const Item& old = before[found->second];
    if (!(old == item)) {
      region += old.bounds();
      region += item.bounds();
    } else if (item.control->parent == nullptr) {
      for (const auto& [rank, bounds] : stayed) {
        if (rank > found->second) region += bounds & item.bounds();
      }
      stayed.emplace_back(found->second, item.bounds());
    }
    ranks.erase(found);
  }
  for (const auto& [control, rank] : ranks) region += before[rank].bounds();
  return region;
}

}  // namespace mevracard
