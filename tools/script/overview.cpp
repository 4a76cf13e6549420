#include "script/overview.h"

#include <array>
#include <cstdio>

#include "platform/picture.h"
#include "script/fields.h"
#include "script/properties.h"
#include "script/values.h"
#include "simulate/signature.h"

namespace mevracard::script {

namespace {

using Lines = std::vector<std::string>;

/// A window's size in dots and how many of them are a pixel.
struct Size {
  int width, height;
  double ratio, growth;
};

constexpr std::array<Size, 2> sizes{{{800, 550, 1.25, 1}, {3840, 2120, 2, 1.8}}};

void addPart(Lines& lines, std::string line, const Properties& properties) {
  for (const auto& [name, value] : properties) line += " " + std::string(name) + "=" + value;
  lines.push_back(line);
}

void addEntries(Lines& lines, const std::vector<MenuEntry*>& entries) {
  for (const MenuEntry* entry : entries) {
    addPart(lines, std::string(entry->name), propertiesOf(*entry));
    addEntries(lines, entry->entries);
  }
}

void addControls(Lines& lines, const std::vector<Control*>& controls) {
  for (const Control* control : controls) {
    addPart(lines, control->fullName(), propertiesOf(*control));
    if (control->kind == ControlKind::Frame) {
      addControls(lines, static_cast<const Frame*>(control)->children);
    }
  }
}

std::string nameOf(const Control* control) {
  return control == nullptr ? "none" : control->fullName();
}

std::string manners(const Form& form) {
  std::string line = "focus " + nameOf(form.focus) + " or " + nameOf(form.defaultFocus) + " as " +
                     nameOf(form.seenFocus) + " escape";
  for (const Button* button : form.escape) line += " " + button->fullName();
  for (const KeptClear& group : form.clearOf ? form.clearOf() : std::vector<KeptClear>()) {
    line += " clear" + flagText(group.always);
    for (const Box* box : group.boxes) line += " " + box->fullName();
  }
  return line;
}

void addSpeech(Lines& lines, const Speech& speech) {
  lines.push_back("line " + speech.line);
  for (const SpokenList& list : speech.lists) {
    for (const SpokenItem& item : list.items) lines.push_back(list.words + ": " + item.words);
  }
}

void addWindow(Lines& lines, const Form& form) {
  addPart(lines, std::string(form.name), propertiesOf(form));
  addSpeech(lines, form.speech);
  lines.push_back(manners(form));
  addEntries(lines, form.menu);
  addControls(lines, form.controls);
}

std::string dotsText(const Dots& d) {
  return " " + std::to_string(d.left) + "," + std::to_string(d.top) + " " +
         std::to_string(d.width) + "x" + std::to_string(d.height);
}

std::string itemText(const Item& item) {
  std::string line = item.control->fullName() + dotsText(item.place) + dotsText(item.room) +
                     dotsText(item.bounds()) + " " + std::to_string(item.type);
  if (const auto* frame = std::get_if<FrameLook>(&item.look)) {
    line += " " + colorText(frame->mark) + decimalText(frame->corner) + " " +
            std::to_string(frame->edge) + " " + std::to_string(frame->shadow);
  }
  return line;
}

void addPicture(Lines& lines, const Form& form, const Size& size) {
  lines.push_back("in " + std::to_string(size.width) + "x" + std::to_string(size.height));
  const Views views = viewsOf(form, {0, 0, size.width, size.height}, size.ratio, size.growth);
  for (const Item& item : pictureOf(form, views, [](const Frame& frame) {
         return WindowPoint{frame.left, frame.top};
       })) {
    lines.push_back(itemText(item));
  }
}

std::string glideText(const Glide& glide) {
  std::string line = "glide " + glide.frame->fullName();
  for (const float twips : {glide.from.left, glide.from.top, glide.to.left, glide.to.top}) {
    line += " " + twipsText(twips);
  }
  return line;
}

}  // namespace

Lines overview(Session& session) {
  MainWindow& w = session.window();
  w.refresh();  // captions follow the state
  Lines lines = fieldLines(w);
  lines.push_back("draws left = " + std::to_string(session.desktop.world.draws.size()));
  lines.push_back("jam " + flagText(w.timer.enabled) + " " + std::to_string(w.timer.interval) +
                  " " + std::to_string(w.timer.armings));
  for (const Form* form : {&w.form, &w.about.form, &w.statistics.form}) addWindow(lines, *form);
  for (const Size& size : sizes) addPicture(lines, w.form, size);
  return lines;
}

std::string digest(Session& session) {
  Lines lines = overview(session);
  for (const Glide& glide : session.desktop.glided) lines.push_back(glideText(glide));
  for (const Glide& glide : session.window().form.glides) lines.push_back(glideText(glide));
  simulate::Signature signature;
  for (const std::string& line : lines) {
    for (const char c : line) signature.fold(static_cast<unsigned char>(c));
  }
  std::array<char, 5> digits{};
  std::snprintf(digits.data(), digits.size(), "%04x",
                static_cast<unsigned>(signature.value() >> 48U));
  return digits.data();
}

}  // namespace mevracard::script
