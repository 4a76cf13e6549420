#include "script/names.h"

#include <algorithm>
#include <array>

#include "script/values.h"

namespace mevracard::script {

namespace {

/// Controls of the other windows that a script may name without their window.
constexpr std::array<std::string_view, 9> bareNames{
    "mainh", "additional", "ctrcom", "wins", "loses", "pwins", "ploses", "tutuprec", "hapusrec"};

bool hasBareName(const Control& control) {
  return std::find(bareNames.begin(), bareNames.end(), control.name) != bareNames.end();
}

template <typename Map>
auto find(const Map& map, std::string_view name) -> typename Map::mapped_type {
  const auto found = map.find(std::string(name));
  return found == map.end() ? nullptr : found->second;
}

template <typename Part>
Part& wanted(Part* part, const char* kind, std::string_view name) {
  if (part == nullptr) throw ScriptError(std::string("no ") + kind + " " + excerpt(name));
  return *part;
}

}  // namespace

Names::Names(MainWindow& w) {
  for (Form* form : {&w.form, &w.about.form, &w.statistics.form}) addWindow(*form);
}

void Names::addWindow(Form& form) {
  // The main window's own parts go by their bare names.
  const std::string window = windows_.empty() ? "" : std::string(form.name) + ".";
  windows_.emplace(form.name, &form);
  for (Control* control : form.controls) addControl(window, *control);
  for (MenuEntry* entry : form.menu) addEntry(*entry);
}

void Names::addControl(const std::string& window, Control& control) {
  controls_.emplace(window + control.fullName(), &control);
  if (!window.empty() && hasBareName(control)) controls_.emplace(control.fullName(), &control);
  if (control.kind != ControlKind::Frame) return;
  for (Control* child : static_cast<Frame&>(control).children) addControl(window, *child);
}

void Names::addEntry(MenuEntry& entry) {
  entries_.emplace(entry.name, &entry);
  for (MenuEntry* inner : entry.entries) addEntry(*inner);
}

Control* Names::findControl(std::string_view name) const { return find(controls_, name); }
MenuEntry* Names::findEntry(std::string_view name) const { return find(entries_, name); }
Form* Names::findWindow(std::string_view name) const { return find(windows_, name); }

Control& Names::control(std::string_view name) const {
  return wanted(findControl(name), "control", name);
}

MenuEntry& Names::entry(std::string_view name) const {
  return wanted(findEntry(name), "menu entry", name);
}

Form& Names::window(std::string_view name) const {
  return wanted(findWindow(name), "window", name);
}

}  // namespace mevracard::script
