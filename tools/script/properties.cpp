#include "script/properties.h"

#include <array>
#include <optional>

#include "platform/headless/transcript.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

using Value = std::optional<std::string>;

/// One row a property: its name, and its text for a part of this kind.
template <typename Part>
struct Property {
  std::string_view name;
  std::string (*text)(const Part& part);
};

template <typename Part, std::size_t N>
Value lookUp(const std::array<Property<Part>, N>& table, const Part& part, std::string_view name) {
  for (const auto& property : table) {
    if (property.name == name) return property.text(part);
  }
  return std::nullopt;
}

constexpr std::array<Property<Control>, 2> ofControls{{
    {"visible", [](const Control& c) { return flagText(c.visible); }},
    {"enabled", [](const Control& c) { return flagText(c.enabled); }},
}};

/// Windows and controls with a box share these.
template <typename Part>
constexpr std::array<Property<Part>, 4> ofBoxes{{
    {"left", [](const Part& p) { return twipsText(p.left); }},
    {"top", [](const Part& p) { return twipsText(p.top); }},
    {"width", [](const Part& p) { return twipsText(p.width); }},
    {"height", [](const Part& p) { return twipsText(p.height); }},
}};

/// Labels and buttons share these.
template <typename Part>
constexpr std::array<Property<Part>, 4> ofTexts{{
    {"caption", [](const Part& p) { return quoted(p.caption); }},
    {"fontSize", [](const Part& p) { return twipsText(p.font.size); }},
    {"backColor", [](const Part& p) { return colorText(p.backColor); }},
    {"foreColor", [](const Part& p) { return colorText(p.foreColor); }},
}};

constexpr std::array<Property<Frame>, 1> ofFrames{{
    {"backColor", [](const Frame& f) { return colorText(f.backColor); }},
}};

constexpr std::array<Property<Line>, 6> ofLines{{
    {"x1", [](const Line& l) { return twipsText(l.x1); }},
    {"y1", [](const Line& l) { return twipsText(l.y1); }},
    {"x2", [](const Line& l) { return twipsText(l.x2); }},
    {"y2", [](const Line& l) { return twipsText(l.y2); }},
    {"borderColor", [](const Line& l) { return colorText(l.borderColor); }},
    {"borderWidth", [](const Line& l) { return std::to_string(l.borderWidth); }},
}};

constexpr std::array<Property<Shape>, 3> ofShapes{{
    {"borderColor", [](const Shape& s) { return colorText(s.borderColor); }},
    {"fillColor", [](const Shape& s) { return colorText(s.fillColor); }},
    {"borderWidth", [](const Shape& s) { return std::to_string(s.borderWidth); }},
}};

constexpr std::array<Property<MenuEntry>, 3> ofEntries{{
    {"caption", [](const MenuEntry& e) { return quoted(e.caption); }},
    {"enabled", [](const MenuEntry& e) { return flagText(e.enabled); }},
    {"checked", [](const MenuEntry& e) { return flagText(e.checked); }},
}};

constexpr std::array<Property<Form>, 4> ofWindows{{
    {"caption", [](const Form& f) { return quoted(f.caption); }},
    {"visible", [](const Form& f) { return flagText(f.visible); }},
    {"enabled", [](const Form& f) { return flagText(f.enabled); }},
    {"backColor", [](const Form& f) { return colorText(f.backColor); }},
}};

Value byKind(const Control& control, std::string_view name) {
  switch (control.kind) {
    case ControlKind::Label:
      return lookUp(ofTexts<Label>, static_cast<const Label&>(control), name);
    case ControlKind::Button:
      return lookUp(ofTexts<Button>, static_cast<const Button&>(control), name);
    case ControlKind::Frame:
      return lookUp(ofFrames, static_cast<const Frame&>(control), name);
    case ControlKind::Line:
      return lookUp(ofLines, static_cast<const Line&>(control), name);
    case ControlKind::Shape:
      return lookUp(ofShapes, static_cast<const Shape&>(control), name);
    case ControlKind::ScrollBar:
      break;
  }
  return std::nullopt;
}

Value valueOf(const Control& control, std::string_view name) {
  if (auto value = lookUp(ofControls, control, name)) return value;
  if (auto value = byKind(control, name)) return value;
  if (control.kind == ControlKind::Line) return std::nullopt;
  return lookUp(ofBoxes<Box>, static_cast<const Box&>(control), name);
}

Value valueOf(const MenuEntry& entry, std::string_view name) {
  return lookUp(ofEntries, entry, name);
}

Value valueOf(const Form& form, std::string_view name) {
  if (auto value = lookUp(ofWindows, form, name)) return value;
  return lookUp(ofBoxes<Form>, form, name);
}

template <typename Part>
std::string valueOrError(const Part& part, std::string_view partName, std::string_view name) {
  if (auto value = valueOf(part, name)) return *value;
  throw ScriptError(std::string(partName) + " has no property " + excerpt(name));
}

}  // namespace

std::string propertyText(const Names& names, std::string_view name) {
  const auto point = name.rfind('.');
  if (point == std::string_view::npos) {
    if (names.findControl(name) == nullptr && names.findEntry(name) == nullptr &&
        names.findWindow(name) == nullptr) {
      throw ScriptError("no field or control " + excerpt(name));
    }
    throw ScriptError(std::string(name) + " needs a property");
  }
  const std::string_view part = name.substr(0, point);
  const std::string_view property = name.substr(point + 1);
  if (const Control* control = names.findControl(part)) {
    return valueOrError(*control, part, property);
  }
  if (const MenuEntry* entry = names.findEntry(part)) return valueOrError(*entry, part, property);
  if (const Form* form = names.findWindow(part)) return valueOrError(*form, part, property);
  throw ScriptError("no control " + excerpt(part));
}

}  // namespace mevracard::script
