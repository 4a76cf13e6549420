#include "platform/headless/headless_desktop.h"

#include <algorithm>
#include <utility>

#include "platform/headless/transcript.h"

namespace mevracard {

void HeadlessDesktop::attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) {
  forms_ = std::move(forms);
  handler_ = std::move(handler);
  visible_.clear();
  running_ = true;
}

void HeadlessDesktop::present() {
  for (Form* form : forms_) form->glides.clear();
  if (speaks()) speak();
}

void HeadlessDesktop::speak() const {
  Form* form = activeForm();
  if (form == nullptr || !std::exchange(form->speech.unsaid, false)) return;
  tell(("says " + std::string(form->name)).c_str(), form->speech.news);
}

void HeadlessDesktop::show(Form& form) {
  if (!form.visible && sink_) sink_("> show " + std::string(form.name));
  form.visible = true;
  activate(form);
}

void HeadlessDesktop::hide(Form& form) {
  if (form.visible && sink_) sink_("> hide " + std::string(form.name));
  form.visible = false;
  std::erase(visible_, &form);
}

void HeadlessDesktop::activate(Form& form) {
  std::erase(visible_, &form);
  visible_.push_back(&form);
}

void HeadlessDesktop::end() {
  if (!running_) return;
  running_ = false;
  for (Form* form : visible_) form->visible = false;
  visible_.clear();
  if (sink_) sink_("> end");
}

void HeadlessDesktop::movePointer(int x, int y) {
  if (sink_) sink_("> cursor " + std::to_string(x) + " " + std::to_string(y));
}

void HeadlessDesktop::tell(const char* what, std::string_view text) const {
  if (sink_) sink_("> " + std::string(what) + " " + quoted(text));
}

Control* HeadlessDesktop::focus() const {
  const Form* form = activeForm();
  return form == nullptr ? nullptr : form->focus;
}

Form* HeadlessDesktop::formOf(const Control& control) const {
  const auto form = std::find_if(forms_.begin(), forms_.end(),
                                 [&control](const Form* f) { return f->holds(control); });
  return form == forms_.end() ? nullptr : *form;
}

Attempt HeadlessDesktop::reach(const Form& form) const {
  if (!running_) return {Refusal::Ended};
  if (!form.visible) return {Refusal::Hidden, form.name};
  if (!form.enabled) return {Refusal::Disabled, form.name};
  return {};
}

Attempt HeadlessDesktop::reach(const Form& form, const Control& control) const {
  if (const Attempt window = reach(form); !window) return window;
  for (const Control* part = &control; part != nullptr; part = part->parent) {
    if (!part->visible) return {Refusal::Hidden, part->name, part->index};
  }
  for (const Control* part = &control; part != nullptr; part = part->parent) {
    if (!part->enabled) return {Refusal::Disabled, part->name, part->index};
  }
  return {};
}

Attempt HeadlessDesktop::send(const Event& event) {
  handler_(event);
  return {};
}

Attempt HeadlessDesktop::press(EventKind kind, Control& control) {
  if (!running_) return {Refusal::Ended};
  Form* form = formOf(control);
  if (form == nullptr) return {Refusal::Hidden, control.name, control.index};
  if (const Attempt way = reach(*form, control); !way) return way;
  if (control.kind == ControlKind::Line || control.kind == ControlKind::Shape) {
    return {Refusal::NotPressed, control.name, control.index};
  }
  if (kind == EventKind::MouseDown) {
    activate(*form);
    form->giveFocus(control);
  }
  return send({kind, form, &control, nullptr, 0});
}

Attempt HeadlessDesktop::mouseDown(Control& control) {
  return press(EventKind::MouseDown, control);
}

Attempt HeadlessDesktop::key(int key) {
  if (!running_) return {Refusal::Ended};
  Form* form = activeForm();
  if (form == nullptr) return {Refusal::NoFocus};
  if (form->focus == nullptr) {
    send(keyEvent(*form, key));  // a player who does not look is answered all the same
    return {Refusal::NoFocus};
  }
  if (const Attempt way = reach(*form, *form->focus); !way) return way;
  return send(keyEvent(*form, key));
}

Attempt HeadlessDesktop::scroll(ScrollBar& bar, int value) {
  if (!running_) return {Refusal::Ended};
  Form* form = formOf(bar);
  if (form == nullptr) return {Refusal::Hidden, bar.name, bar.index};
  if (const Attempt way = reach(*form, bar); !way) return way;
  if (bar.value == value) return {};
  bar.value = value;
  return send({EventKind::Scroll, form, &bar, nullptr, value});
}

Attempt HeadlessDesktop::menu(MenuEntry& entry) {
  if (!running_) return {Refusal::Ended};
  Form& form = *forms_.front();
  if (const Attempt way = reach(form); !way) return way;
  for (const MenuEntry* part = &entry; part != nullptr; part = part->parent) {
    if (!part->enabled) return {Refusal::Disabled, part->name};
  }
  activate(form);
  return send({EventKind::Menu, &form, nullptr, &entry, 0});
}

Attempt HeadlessDesktop::close(Form& form) {
  if (const Attempt way = reach(form); !way) return way;
  return send({EventKind::Close, &form, nullptr, nullptr, 0});
}

Attempt HeadlessDesktop::tick() {
  if (!running_) return {Refusal::Ended};
  Form& form = *forms_.front();
  if (form.timer == nullptr || !form.timer->enabled) return {Refusal::NotArmed};
  return send({EventKind::Tick, &form, nullptr, nullptr, 0});
}

double HeadlessDesktop::random() {
  if (world.draws.empty()) return random_.next();
  const double draw = world.draws.front();
  world.draws.pop_front();
  return draw;
}

std::string HeadlessDesktop::readFile(std::string_view name) {
  if (world.unreadable.contains(name)) {
    throw PlatformError(std::string(name) + " cannot be read: refused");
  }
  const auto file = world.files.find(name);
  if (file == world.files.end()) {
    throw PlatformError(std::string(name) + " cannot be read: No such file");
  }
  return file->second;
}

void HeadlessDesktop::writeFile(std::string_view name, std::string_view text) {
  if (world.unwritable.contains(name)) {
    throw PlatformError(std::string(name) + " cannot be written: refused");
  }
  if (sink_) sink_("> write " + std::string(name) + " " + quoted(text));
  world.files.insert_or_assign(std::string(name), text);
}

bool HeadlessDesktop::exchangeFile(std::string_view name, std::string_view expected,
                                   std::string_view text) {
  if (readFile(name) != expected) return false;
  writeFile(name, text);
  return true;
}

}  // namespace mevracard
