#include <array>

#include "platform/headless/transcript.h"
#include "script/commands.h"
#include "script/fields.h"
#include "script/overview.h"
#include "script/procedures.h"
#include "script/properties.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

std::string orderText(MainWindow& w) {
  std::string order;
  for (const Control* control : w.form.controls) {
    if (control->kind == ControlKind::Frame)
      order += (order.empty() ? "" : " ") + control->fullName();
  }
  return order;
}

std::string focusText(const HeadlessDesktop& desktop) {
  const Control* focus = desktop.focus();
  return focus == nullptr ? "none" : focus->fullName();
}

std::string valueText(Session& session, std::string_view name) {
  MainWindow& w = session.window();
  if (name == "order") return orderText(w);
  if (name == "focus") return focusText(session.desktop);
  if (name == "random") return std::to_string(session.desktop.world.draws.size());
  if (name == "jam.enabled") return flagText(w.timer.enabled);
  if (name == "jam.interval") return std::to_string(w.timer.interval);
  if (auto field = fieldText(w, name)) return *field;
  return propertyText(session.names(), name);
}

void showFile(const Call& call) {
  if (call.words.size() != 2) throw ScriptError("wanted: show file NAME");
  const auto& files = call.session().desktop.world.files;
  const auto file = files.find(call.words[1]);
  print("file " + std::string(call.words[1]) + " = " +
        (file == files.end() ? "none" : quoted(file->second)));
}

std::string itemText(const SpokenItem& item) {
  return "item " + item.control->fullName() + " " + quoted(item.words) +
         (item.selected ? " selected" : "") + (item.answersPress ? " pressable" : "");
}

void showSpeech(const HeadlessDesktop& desktop) {
  if (!desktop.speaks()) throw ScriptError("speech is off");
  const Form* form = desktop.activeForm();
  if (form == nullptr) return;
  for (const SpokenList& list : form->speech.lists) {
    print("list " + quoted(list.words));
    for (const SpokenItem& item : list.items) print(itemText(item));
  }
}

void show(const Call& call) {
  call.session().window().refresh();  // captions follow the state
  if (call.words[0] == "file") return showFile(call);
  if (call.text == "all") {
    for (const std::string& line : overview(call.session())) print(line);
    return;
  }
  if (call.text == "speech") return showSpeech(call.session().desktop);
  // All names are looked up before the first is shown, so that a faulty line shows nothing.
  std::vector<std::string> lines;
  for (const auto name : call.words) {
    lines.push_back(std::string(name) + " = " + valueText(call.session(), name));
  }
  for (const auto& line : lines) print(line);
}

void setFields(MainWindow& w, const Call& call) {
  // A text must not lose the blanks in it; every other value is one word.
  if (call.words[0] == "tipText") return setField(w, "tipText", afterFirstWord(call.text));
  if (call.words.size() % 2 != 0) throw ScriptError("wanted: set FIELD VALUE ...");
  for (std::size_t i = 0; i < call.words.size(); i += 2) {
    setField(w, call.words[i], call.words[i + 1]);
  }
}

void set(const Call& call) {
  MainWindow& w = call.session().window();
  setFields(w, call);
  w.present();
}

void callProcedure(const Call& call) {
  MainWindow& w = call.session().window();
  const Procedure procedure = procedureNamed(call.words[0], std::span(call.words).subspan(1));
  try {
    if (const auto result = procedure(w)) print(std::string(call.words[0]) + " = " + *result);
  } catch (const std::exception& error) {
    w.desktop.reportError(error.what());
  }
  w.present();
}

constexpr std::array<Command, 3> stateTable{{
    {"show", "show NAME ...", 1, anyNumber, true, show},
    {"set", "set FIELD VALUE ...", 2, anyNumber, true, set},
    {"call", "call NAME", 1, 3, true, callProcedure},
}};

}  // namespace

std::span<const Command> stateCommands() { return stateTable; }

}  // namespace mevracard::script
