#include "script/properties.h"

#include <algorithm>

#include "platform/headless/transcript.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

template <typename Part>
void addBox(Properties& list, const Part& p) {
  list.emplace_back("left", twipsText(p.left));
  list.emplace_back("top", twipsText(p.top));
  list.emplace_back("width", twipsText(p.width));
  list.emplace_back("height", twipsText(p.height));
}

template <typename Part>
void addText(Properties& list, const Part& p) {
  list.emplace_back("caption", quoted(p.caption));
  list.emplace_back("fontName", quoted(p.font.family));
  list.emplace_back("fontSize", twipsText(p.font.size));
  list.emplace_back("fontBold", flagText(p.font.bold));
  list.emplace_back("fontItalic", flagText(p.font.italic));
  list.emplace_back("backColor", colorText(p.backColor));
  list.emplace_back("foreColor", colorText(p.foreColor));
}

template <typename Part>
void addBorder(Properties& list, const Part& p) {
  list.emplace_back("borderColor", colorText(p.borderColor));
  list.emplace_back("borderWidth", std::to_string(p.borderWidth));
}

void add(Properties& list, const Label& l) {
  addText(list, l);
  list.emplace_back("alignment", std::to_string(static_cast<int>(l.alignment)));
  list.emplace_back("bordered", flagText(l.bordered));
  list.emplace_back("opaque", flagText(l.opaque));
  list.emplace_back("link", flagText(l.link));
  list.emplace_back("scrolls", flagText(l.scrolls));
  list.emplace_back("foremost", flagText(l.foremost));
}

void add(Properties& list, const Button& b) {
  addText(list, b);
  list.emplace_back("keysOnly", flagText(b.keysOnly));
}

void add(Properties& list, const Frame& f) {
  list.emplace_back("backColor", colorText(f.backColor));
}

void add(Properties& list, const Line& l) {
  list.emplace_back("x1", twipsText(l.x1));
  list.emplace_back("y1", twipsText(l.y1));
  list.emplace_back("x2", twipsText(l.x2));
  list.emplace_back("y2", twipsText(l.y2));
  addBorder(list, l);
}

void add(Properties& list, const Shape& s) {
  addBorder(list, s);
  list.emplace_back("shape", std::to_string(static_cast<int>(s.form)));
  list.emplace_back("outlined", flagText(s.outlined));
  list.emplace_back("filled", flagText(s.filled));
  list.emplace_back("dashed", flagText(s.dashed));
  list.emplace_back("fillColor", colorText(s.fillColor));
}

void add(Properties& list, const ScrollBar& b) {
  list.emplace_back("min", std::to_string(b.minimum));
  list.emplace_back("max", std::to_string(b.maximum));
  list.emplace_back("value", std::to_string(b.value));
}

void addOfKind(Properties& list, const Control& c) {
  switch (c.kind) {
    case ControlKind::Label:
      return add(list, static_cast<const Label&>(c));
    case ControlKind::Button:
      return add(list, static_cast<const Button&>(c));
    case ControlKind::Frame:
      return add(list, static_cast<const Frame&>(c));
    case ControlKind::Line:
      return add(list, static_cast<const Line&>(c));
    case ControlKind::Shape:
      return add(list, static_cast<const Shape&>(c));
    case ControlKind::ScrollBar:
      return add(list, static_cast<const ScrollBar&>(c));
  }
}

template <typename Part>
std::string valueOrError(const Part& part, std::string_view partName, std::string_view name) {
  for (auto& [property, value] : propertiesOf(part)) {
    if (property == name) return value;
  }
  throw ScriptError(std::string(partName) + " has no property " + excerpt(name));
}

}  // namespace

Properties propertiesOf(const Control& c) {
  Properties list{{"visible", flagText(c.visible)},
                  {"enabled", flagText(c.enabled)},
                  {"layer", std::to_string(static_cast<int>(c.layer))},
                  {"pinned", flagText(c.pinned)}};
  if (c.kind != ControlKind::Line) addBox(list, static_cast<const Box&>(c));
  addOfKind(list, c);
  return list;
}

Properties propertiesOf(const MenuEntry& e) {
  return {{"caption", quoted(e.caption)},
          {"enabled", flagText(e.enabled)},
          {"checked", flagText(e.checked)}};
}

Properties propertiesOf(const Form& f) {
  Properties list{{"caption", quoted(f.caption)},       {"visible", flagText(f.visible)},
                  {"enabled", flagText(f.enabled)},     {"backColor", colorText(f.backColor)},
                  {"maximized", flagText(f.maximized)}, {"placed", flagText(f.placed)}};
  addBox(list, f);
  return list;
}

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
