#include "platform/qt/surface.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <algorithm>
#include <utility>

#include "platform/qt/button_widget.h"
#include "platform/qt/look.h"
#include "platform/qt/scroll_bar_widget.h"

namespace mevracard {

namespace {

bool isGraphic(const Control& control) {
  return control.kind == ControlKind::Line || control.kind == ControlKind::Shape;
}

Graphic graphicOf(const Control& control) {
  if (control.kind == ControlKind::Line) return graphicOf(static_cast<const Line&>(control));
  return graphicOf(static_cast<const Shape&>(control));
}

bool contains(const Box& outer, const Box& inner) {
  return outer.left <= inner.left && outer.top <= inner.top &&
         outer.left + outer.width >= inner.left + inner.width &&
         outer.top + outer.height >= inner.top + inner.height;
}

/// A button or scroll bar that can be seen.
bool isSolid(const Control& control) {
  if (control.kind == ControlKind::Button) return !static_cast<const Button&>(control).keysOnly;
  return control.kind == ControlKind::ScrollBar;
}

void paintAll(QPainter& painter, const std::vector<Graphic>& graphics, const QRectF& dirty) {
  for (const Graphic& graphic : graphics) {
    if (graphic.bounds().intersects(dirty)) paint(painter, graphic);
  }
}

QWidget* makeWidget(Control& control, WidgetHost& host, QWidget& parent) {
  switch (control.kind) {
    case ControlKind::Label:
      return new LabelWidget(static_cast<Label&>(control), host, parent);
    case ControlKind::Button:
      return new ButtonWidget(static_cast<Button&>(control), host, parent);
    case ControlKind::Frame:
      return new FrameWidget(static_cast<Frame&>(control), host, parent);
    case ControlKind::ScrollBar:
      return new ScrollBarWidget(static_cast<ScrollBar&>(control), host, parent);
    default:
      return nullptr;
  }
}

}  // namespace

Overlay::Overlay(QWidget& parent) : QWidget(&parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Overlay::flush(std::vector<Graphic> graphics) {
  if (graphics == graphics_) return;
  graphics_ = std::move(graphics);
  QRectF all;
  for (const Graphic& graphic : graphics_) all |= graphic.bounds();
  setGeometry(all.toAlignedRect());
  setVisible(!graphics_.empty());
  update();
}

void Overlay::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.translate(-pos());
  paintAll(painter, graphics_, QRectF(event->rect().translated(pos())));
}

/// Where each line and shape goes, and the order of the widgets and overlays from back to front.
struct Surface::Arrangement {
  std::vector<Graphic> ground;
  std::vector<std::vector<Graphic>> runs;  ///< one an overlay
  struct Item {
    QWidget* widget = nullptr;  ///< null for the next run
  };
  std::vector<Item> order;
};

Surface::Surface(const std::vector<Control*>& controls, WidgetHost& host, QWidget& parent)
    : QWidget(&parent), controls_(controls), host_(host) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

bool Surface::flush(Color color) {
  bool changed = false;
  if (const QColor wanted = toColor(color); wanted != backColor_) {
    backColor_ = wanted;
    update();
    changed = true;
  }
  for (std::size_t i = 0; i < controls_.size(); ++i) {
    if (!isGraphic(*controls_[i])) changed |= flushWidget(*controls_[i], i);
  }
  return flushGraphics() || changed;
}

QWidget* Surface::widgetOf(const Control& control) const {
  if (const auto own = widgets_.find(&control); own != widgets_.end()) return own->second;
  const auto frame = widgets_.find(control.parent);
  if (frame == widgets_.end()) return nullptr;
  return static_cast<const Surface&>(*frame->second).widgetOf(control);
}

QWidget& Surface::widgetFor(Control& control) {
  QWidget*& widget = widgets_[&control];
  if (widget == nullptr) {
    widget = makeWidget(control, host_, *this);
    stacked_.push_back(widget);
  }
  return *widget;
}

Exposure Surface::exposureOf(const Label& label, std::size_t depth) const {
  Exposure exposure{false, toPixelRect(label)};
  for (std::size_t i = depth + 1; i < controls_.size(); ++i) {
    const Control& control = *controls_[i];
    if (!control.visible) continue;
    if (control.kind == ControlKind::Shape) {
      const auto& shape = static_cast<const Shape&>(control);
      exposure.covered |=
          shape.filled && shape.form == ShapeForm::Rectangle && contains(shape, label);
    } else if (isSolid(control)) {
      const QRect other = toPixelRect(static_cast<const Box&>(control));
      const bool below = other.top() > exposure.clear.top();
      if (below && other.intersects(exposure.clear)) exposure.clear.setBottom(other.top() - 1);
    }
  }
  return exposure;
}

bool Surface::flushWidget(Control& control, std::size_t depth) {
  QWidget& widget = widgetFor(control);
  switch (control.kind) {
    case ControlKind::Label:
      return static_cast<LabelWidget&>(widget).flush(
          exposureOf(static_cast<const Label&>(control), depth));
    case ControlKind::Button:
      return static_cast<ButtonWidget&>(widget).flush(host_.tabReaches(control));
    case ControlKind::Frame:
      return static_cast<FrameWidget&>(widget).flush();
    default:
      return static_cast<ScrollBarWidget&>(widget).flush();
  }
}

Surface::Arrangement Surface::arrange() const {
  Arrangement result;
  std::vector<QRectF> inFront;  // what a line or shape may not be painted behind
  for (const Control* control : controls_) {
    if (!isGraphic(*control)) {
      QWidget* widget = widgets_.at(control);
      result.order.push_back({widget});
      if (!widget->isHidden()) inFront.emplace_back(widget->geometry());
      continue;
    }
    if (!control->visible) continue;
    const Graphic graphic = graphicOf(*control);
    const QRectF bounds = graphic.bounds();
    const bool onTop = std::any_of(inFront.begin(), inFront.end(),
                                   [&](const QRectF& other) { return other.intersects(bounds); });
    if (!onTop) {
      result.ground.push_back(graphic);
      continue;
    }
    inFront.push_back(bounds);
    if (result.order.back().widget != nullptr) {
      result.order.push_back({});
      result.runs.emplace_back();
    }
    result.runs.back().push_back(graphic);
  }
  return result;
}

bool Surface::flushGraphics() {
  Arrangement wanted = arrange();
  bool changed = paintGround(std::move(wanted.ground));
  for (std::size_t i = 0; i < wanted.runs.size(); ++i) {
    overlay(i).flush(std::move(wanted.runs[i]));
  }
  for (std::size_t i = wanted.runs.size(); i < overlays_.size(); ++i) overlays_[i]->flush({});

  std::vector<QWidget*> order;
  std::size_t run = 0;
  for (const auto& item : wanted.order) {
    order.push_back(item.widget != nullptr ? item.widget : overlays_[run++]);
  }
  order.insert(order.begin(), overlays_.begin() + static_cast<std::ptrdiff_t>(run),
               overlays_.end());
  return restack(order) || changed;
}

bool Surface::paintGround(std::vector<Graphic> ground) {
  if (ground == ground_) return false;
  const auto updateMissing = [this](const std::vector<Graphic>& from,
                                    const std::vector<Graphic>& in) {
    for (const Graphic& graphic : from) {
      if (std::find(in.begin(), in.end(), graphic) == in.end()) {
        update(graphic.bounds().toAlignedRect());
      }
    }
  };
  updateMissing(ground_, ground);
  updateMissing(ground, ground_);
  ground_ = std::move(ground);
  return true;
}

Overlay& Surface::overlay(std::size_t index) {
  while (overlays_.size() <= index) {
    overlays_.push_back(new Overlay(*this));
    stacked_.push_back(overlays_.back());
  }
  return *overlays_[index];
}

bool Surface::restack(const std::vector<QWidget*>& order) {
  if (order == stacked_) return false;
  for (std::size_t i = order.size(); i-- > 0;) {
    if (stacked_[i] == order[i]) continue;
    if (i + 1 == order.size()) {
      order[i]->raise();
    } else {
      order[i]->stackUnder(order[i + 1]);
    }
    const auto now = std::find(stacked_.begin(), stacked_.end(), order[i]);
    std::rotate(now, now + 1, stacked_.begin() + static_cast<std::ptrdiff_t>(i) + 1);
  }
  return true;
}

void Surface::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), backColor_);
  paintAll(painter, ground_, QRectF(event->rect()));
}

FrameWidget::FrameWidget(Frame& frame, WidgetHost& host, QWidget& parent)
    : Surface(frame.children, host, parent), frame_(frame), host_(host) {
  setObjectName(QString::fromStdString(frame.fullName()));
  setVisible(false);
}

bool FrameWidget::flush() {
  const auto track = std::exchange(frame_.track, {});
  bool changed = flushPlace();
  if (frame_.visible && Surface::flush(frame_.backColor)) {
    nameItself();
    changed = true;
  }
  if (isHidden() == frame_.visible) {
    setVisible(frame_.visible);
    changed = true;
  }
  if (changed) host_.glides().end(*this);
  if (frame_.visible && !track.empty()) {
    std::vector<QPointF> path;
    path.reserve(track.size());
    for (const Position& p : track) path.emplace_back(toPixels(p.left), toPixels(p.top));
    host_.glides().plan(*this, std::move(path));
  }
  return changed;
}

bool FrameWidget::flushPlace() {
  const QRect place = toPixelRect(frame_);
  if (!frame_.visible || (place == geometry() && isEnabled() == frame_.enabled)) return false;
  setGeometry(place);
  setEnabled(frame_.enabled);
  return true;
}

void FrameWidget::nameItself() {
  QStringList texts;
  for (const Control* child : frame_.children) {
    const auto* label = qobject_cast<const QLabel*>(widgetOf(*child));
    if (label != nullptr && !label->isHidden()) texts += label->text();
  }
  setAccessibleName(texts.join('-'));
}

void FrameWidget::paintEvent(QPaintEvent* event) {
  Surface::paintEvent(event);
  QPainter painter(this);
  paintBorder(painter, rect().adjusted(1, 1, 0, 0), Qt::white);
  paintBorder(painter, rect(), backColor().darker(250));
}

void FrameWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) host_.send(EventKind::DoubleClick, frame_);
}

}  // namespace mevracard
