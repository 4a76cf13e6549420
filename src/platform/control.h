#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Passive parts of a window. They are plain data: the game reads and writes them, a desktop shows
/// them. Nothing here paints, waits or calls back. Positions and sizes are in twips (1440 to the
/// inch) from the top-left corner of the parent's client area, font sizes in points, border widths
/// in pixels.
namespace mevracard {

struct Color {
  std::uint8_t red = 0, green = 0, blue = 0;
  bool operator==(const Color&) const = default;
};

struct Font {
  const char* family = "MS Sans Serif";
  float size = 8.25F;
  bool bold = false;
  bool italic = false;
  bool operator==(const Font&) const = default;
};

enum class ControlKind { Label, Button, Frame, Line, Shape, ScrollBar };
enum class Alignment { Left, Centre, Right };
enum class ShapeForm { Rectangle, RoundedRectangle, Ellipse };

/// Depth bands of a window, back to front. Moving a control to the front or back keeps its band.
enum class Layer { Table, Cards, Panels };

struct Frame;

/// What every part has. `index` is the place in an array of like controls, -1 for a single one.
struct Control {
  explicit Control(ControlKind k) : kind(k) {}

  ControlKind kind;
  std::string_view name;
  int index = -1;
  bool visible = true;
  bool enabled = true;
  Layer layer = Layer::Table;
  bool pinned = false;  ///< keeps its place and size while the rest is fitted into the window
  Frame* parent = nullptr;
  bool operator==(const Control&) const = default;

  /// "k(5)" for an array element, the bare name for a single control.
  [[nodiscard]] std::string fullName() const;
  /// Visible and enabled, and so is the frame around it.
  [[nodiscard]] bool usable() const;
};

/// A control with a box.
struct Box : Control {
  using Control::Control;
  float left = 0, top = 0, width = 0, height = 0;
  bool operator==(const Box&) const = default;
};

struct Label : Box {
  Label() : Box(ControlKind::Label) {}
  std::string caption;
  Font font;
  Alignment alignment = Alignment::Left;
  bool bordered = false;
  bool opaque = true;          ///< painted on its back colour, else on what lies behind it
  bool link = false;           ///< the pointer over it is a hand, and it can be pressed
  bool scrolls = false;        ///< a text that may be longer than its box
  bool foremost = false;       ///< must be read: a real desktop paints it in front of everything
  const Box* spare = nullptr;  ///< its place where its own is too small for a text
  Color backColor, foreColor;
  bool operator==(const Label&) const = default;
};

struct Button : Box {
  Button() : Box(ControlKind::Button) {}
  std::string caption;
  Font font;
  bool keysOnly = false;  ///< takes the focus and keys, is never painted and never hit by the mouse
  Color backColor{212, 208, 200}, foreColor;
};

/// A bordered panel with children of its own, `children` in depth order from back to front.
struct Frame : Box {
  Frame() : Box(ControlKind::Frame) {}
  Color backColor;
  std::vector<Control*> children;
};

struct Line : Control {
  Line() : Control(ControlKind::Line) {}
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Color borderColor;
  std::int16_t borderWidth = 1;
  bool operator==(const Line&) const = default;
};

struct Shape : Box {
  Shape() : Box(ControlKind::Shape) {}
  ShapeForm form = ShapeForm::Rectangle;
  bool outlined = true;
  bool filled = false;
  bool dashed = false;  ///< outline drawn dash-dot-dot
  Color borderColor, fillColor;
  std::int16_t borderWidth = 1;
  bool operator==(const Shape&) const = default;
};

/// Horizontal scroll bar; `value` stays within `minimum` to `maximum`, both steps are 1.
struct ScrollBar : Box {
  ScrollBar() : Box(ControlKind::ScrollBar) {}
  std::string_view spoken;  ///< what it is called
  int minimum = 0, maximum = 100, value = 0;
};

/// Whether a control of this kind can hold the focus.
[[nodiscard]] bool takesFocus(const Control& control);

}  // namespace mevracard
