#include "platform/picture.h"

#include <algorithm>
#include <unordered_map>

namespace mevracard {

namespace {

constexpr int labelPadding = 2;  // pixels beside a text that is not centred

/// Widgets lie in front of all that is painted, and there some labels in front of the rest.
int height(const Control& control) {
  if (isWidget(control)) return 2;
  return control.kind == ControlKind::Label && static_cast<const Label&>(control).foremost ? 1 : 0;
}

/// The items of a frame and its parts, which stand side by side.
template <typename Items>
auto partsOf(const Frame& frame, Items& items) {
  const auto belongs = [&frame](const Item& item) {
    return item.control == &frame || item.control->parent == &frame;
  };
  const auto first = std::find_if(items.begin(), items.end(), belongs);
  return std::pair{first, std::find_if_not(first, items.end(), belongs)};
}

/// What the pinned controls cover, all of them or those that show.
Dots pinnedArea(const Form& form, const View& view, bool all) {
  Dots area;
  for (const Control* control : form.controls) {
    const bool counts = control->pinned && control->kind != ControlKind::Line;
    if (!counts || !(all || control->visible)) continue;
    area = area.joined(view.box(static_cast<const Box&>(*control)));
  }
  return area;
}

/// Where the text of a label is read that has this place.
Dots readable(const Label& label, Dots place, const Views& views) {
  constexpr int leastWidth = 6;  // times the size of the type
  if (label.spare != nullptr && place.width < leastWidth * views.type()) {
    return views.of(label).box(*label.spare);
  }
  if (label.foremost && place.meets(views.panels)) place.top = views.panels.bottom();
  return place;
}

/// Makes a picture, one window or frame at a time.
class Maker {
 public:
  Maker(const Views& views, const std::function<WindowPoint(const Frame&)>& seenAt,
        Picture& picture)
      : views_(views), seenAt_(seenAt), picture_(picture) {}

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
          item.place = item.view.line(static_cast<const Line&>(**c));
          picture_.push_back(item);
          break;
        case ControlKind::Button:  // that only takes keys, or a widget
        case ControlKind::ScrollBar:
          break;
        case ControlKind::Shape:
          item.look = static_cast<const Shape&>(**c);
          item.place = item.view.box(static_cast<const Shape&>(**c));
          picture_.push_back(item);
      }
    }
  }

 private:
  using Controls = std::vector<Control*>::const_iterator;

  [[nodiscard]] View viewOf(const Control& control, const Item* frame) const {
    if (frame == nullptr) return views_.of(control);
    return {frame->view.dotsPerTwip, double(frame->place.left), double(frame->place.top)};
  }

  [[nodiscard]] Dots placeOf(const Box& box, const Item* frame) const {
    return frame == nullptr ? views_.placeOf(box) : viewOf(box, frame).box(box);
  }

  [[nodiscard]] bool isCovered(const Item& label, Controls next, Controls end) const {
    return std::any_of(next, end, [&](const Control* c) {
      if (c->kind != ControlKind::Shape || !c->visible) return false;
      const auto& shape = static_cast<const Shape&>(*c);
      return shape.filled && shape.form == ShapeForm::Rectangle &&
             label.view.box(shape).holds(label.place);
    });
  }

  void addFrame(Item& item, const Frame& frame) {
    const WindowPoint at = seenAt_(frame);
    item.place = item.view.box(frame, at.left, at.top);
    const FrameLook look(frame, item.place, item.view);
    item.room = item.place.grown(-look.edge);
    item.look = look;
    picture_.push_back(item);
    add(frame.children, &item);
  }

  void addLabel(Item& item, Controls next, Controls end, const Item* frame) {
    const auto& label = static_cast<const Label&>(*item.control);
    item.look = label;
    item.place = placeOf(label, frame);
    item.type = views_.type();
    if (isCovered(item, next, end)) return;
    const int border = label.bordered ? item.view.border(1) : 0;
    const int side = label.alignment == Alignment::Centre ? 0 : item.view.border(labelPadding);
    item.room = item.place.grown(-side - border, -border);
    if (!label.opaque) {  // no ground to leave
      const int more = item.place.width;
      if (label.alignment != Alignment::Left) item.room.left -= more;
      item.room.width += label.alignment == Alignment::Centre ? 2 * more : more;
    }
    if (frame == nullptr) item.room = item.room.within(views_.window);
    for (; next != end; ++next) item.room = item.room.beside(obstacle(**next, frame));
    picture_.push_back(item);
  }

  /// What in front of a text would hide it.
  [[nodiscard]] Dots obstacle(const Control& control, const Item* frame) const {
    if (!control.visible) return {};
    if (control.kind == ControlKind::Line) {
      const auto& line = static_cast<const Line&>(control);
      return isStraight(line) ? viewOf(line, frame).line(line) : Dots();
    }
    const bool solid = control.kind == ControlKind::Label
                           ? static_cast<const Label&>(control).opaque
                           : isWidget(control);
    return solid ? placeOf(static_cast<const Box&>(control), frame) : Dots();
  }

  const Views& views_;
  const std::function<WindowPoint(const Frame&)>& seenAt_;
  Picture& picture_;
};

}  // namespace

FrameLook::FrameLook(const Frame& frame, const Dots& place, const View& view)
    : backColor(frame.backColor), mark(frame.backColor), corner(place.width / 8.0) {
  for (const Control* child : frame.children) {
    if (child->kind != ControlKind::Label) continue;
    const auto& label = static_cast<const Label&>(*child);
    if (label.opaque && label.backColor != backColor) mark = label.backColor;
  }
  edge = std::max(view.border(1), place.width / (mark == backColor ? 32 : 11));
  shadow = std::max(2, place.width / 8);
}

Dots Item::bounds() const {
  if (const auto* frame = std::get_if<FrameLook>(&look)) return place.grown(frame->shadow);
  if (const auto* shape = std::get_if<Shape>(&look)) {
    return place.grown(view.border(shape->borderWidth) + 1);
  }
  if (std::holds_alternative<Line>(look) || control->parent != nullptr) return place;
  return place.joined(room.grown(2 * type, type));
}

Views viewsOf(const Form& form, const Dots& window, double ratio, double growth) {
  const View own = View::plain(ratio * growth);
  if (form.whole == nullptr) return {own, own, window};
  const View table = View::fitted(*form.whole, window.width, window.height, ratio, form.headroom);
  const Dots all = pinnedArea(form, own, true);
  if (form.corner == nullptr || !all.meets(table.box(*form.whole))) return {table, own, window};
  const Dots corner = table.box(*form.corner);
  const double left = corner.left - all.left;
  const double top = corner.top - all.top;
  const View pinned{own.dotsPerTwip, left, top};
  return {table, pinned, window, pinnedArea(form, pinned, false)};
}

Dots Views::placeOf(const Box& box) const {
  if (box.parent != nullptr) {
    const Dots frame = placeOf(*box.parent);
    return View{of(*box.parent).dotsPerTwip, double(frame.left), double(frame.top)}.box(box);
  }
  const Dots place = of(box).box(box);
  return box.kind == ControlKind::Label ? readable(static_cast<const Label&>(box), place, *this)
                                        : place;
}

bool isWidget(const Control& control) {
  if (control.kind == ControlKind::Button) return !static_cast<const Button&>(control).keysOnly;
  if (control.kind != ControlKind::Label) return control.kind == ControlKind::ScrollBar;
  const auto& label = static_cast<const Label&>(control);
  return label.link || label.scrolls;
}

Picture pictureOf(const Form& form, const Views& views,
                  const std::function<WindowPoint(const Frame&)>& seenAt) {
  Picture picture;
  picture.reserve(form.controls.size() * 5);
  std::vector<Control*> controls = form.controls;
  std::stable_sort(controls.begin(), controls.end(),
                   [](const Control* a, const Control* b) { return height(*a) < height(*b); });
  Maker(views, seenAt, picture).add(controls, nullptr);
  return picture;
}

void keepLook(Picture& picture, const Frame& frame, const Picture& before) {
  const auto [from, to] = partsOf(frame, before);
  const auto [first, last] = partsOf(frame, picture);
  if (from == to || first == last) return;
  picture.insert(picture.erase(first, last), from, to);
}

Control* controlAt(const Picture& picture, int x, int y) {
  const auto hit = std::find_if(picture.rbegin(), picture.rend(), [&](const Item& item) {
    const bool takesMouse =
        item.control->kind == ControlKind::Label || item.control->kind == ControlKind::Frame;
    return takesMouse && item.place.holds(x, y);
  });
  return hit == picture.rend() ? nullptr : hit->control;
}

std::vector<Dots> difference(const Picture& before, const Picture& after) {
  std::vector<Dots> changed;
  std::unordered_map<const Control*, std::size_t> ranks;
  for (std::size_t i = 0; i < before.size(); ++i) ranks[before[i].control] = i;
  std::vector<std::pair<std::size_t, Dots>> stayed;  // the rank before, back to front
  for (const Item& item : after) {
    const auto found = ranks.find(item.control);
    if (found == ranks.end()) {
      changed.push_back(item.bounds());
      continue;
    }
    const Item& old = before[found->second];
    if (old != item) {
      changed.push_back(old.bounds());
      changed.push_back(item.bounds());
    } else if (item.control->parent == nullptr) {
      for (const auto& [rank, bounds] : stayed) {
        if (rank > found->second && bounds.meets(item.bounds())) {
          changed.push_back(bounds.within(item.bounds()));
        }
      }
      stayed.emplace_back(found->second, item.bounds());
    }
    ranks.erase(found);
  }
  for (const auto& [control, rank] : ranks) changed.push_back(before[rank].bounds());
  return changed;
}

}  // namespace mevracard
