#pragma once

#include "platform/form.h"
#include "ui/colors.h"

/// One call a row for the control tables of the windows.
namespace mevracard {

struct Rect {
  float left, top, width, height;
};

struct LabelLook {
  Color back, text;
  Font font;
  Alignment alignment = Alignment::Left;
  bool bordered = false;
  bool opaque = true;
};

inline void place(Box& box, const Rect& at) {
  box.left = at.left;
  box.top = at.top;
  box.width = at.width;
  box.height = at.height;
}

inline void design(Label& label, const Rect& at, std::string_view caption, const LabelLook& look) {
  place(label, at);
  label.caption = caption;
  label.backColor = look.back;
  label.foreColor = look.text;
  label.font = look.font;
  label.alignment = look.alignment;
  label.bordered = look.bordered;
  label.opaque = look.opaque;
}

inline void design(Button& button, const Rect& at, std::string_view caption) {
  place(button, at);
  button.caption = caption;
}

inline void design(Line& line, float x1, float y1, float x2, float y2, Color color,
                   std::int16_t width) {
  line.x1 = x1;
  line.y1 = y1;
  line.x2 = x2;
  line.y2 = y2;
  line.borderColor = color;
  line.borderWidth = width;
}

/// An outline without fill.
inline void outline(Shape& shape, ShapeForm form, const Rect& at, Color color,
                    std::int16_t width = 1) {
  place(shape, at);
  shape.form = form;
  shape.borderColor = color;
  shape.borderWidth = width;
}

/// A filled shape; its outline has the colour `edge`.
inline void solid(Shape& shape, ShapeForm form, const Rect& at, Color fill, Color edge) {
  outline(shape, form, at, edge);
  shape.filled = true;
  shape.fillColor = fill;
}

/// Puts an array of like controls on a window, told apart by their index.
template <typename Array>
void addAll(Form& form, Array& controls, std::string_view name) {
  for (std::size_t i = 0; i < controls.size(); ++i) {
    form.add(controls[i], name, static_cast<int>(i));
  }
}

}  // namespace mevracard
