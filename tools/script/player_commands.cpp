#include <array>

#include "platform/event.h"
#include "script/commands.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

void report(const Attempt& attempt) {
  if (!attempt) print("ignored: " + attempt.why());
}

void start(const Call& call) {
  if (call.session().desktop.running()) return print("ignored: the program is already running");
  call.session().start();
}

Control& target(const Call& call) { return call.session().names().control(call.words[0]); }

void menu(const Call& call) {
  report(call.session().desktop.menu(call.session().names().entry(call.words[0])));
}

void click(const Call& call) { report(call.session().desktop.click(target(call))); }

void doubleClick(const Call& call) { report(call.session().desktop.doubleClick(target(call))); }

void mouseDown(const Call& call) { report(call.session().desktop.mouseDown(target(call))); }

int parseKey(std::string_view word) {
  if (word == "Enter") return keyEnter;
  if (word == "Space") return keySpace;
  if (word == "Esc") return keyEscape;
  if (word == "Tab") return keyUntyped;
  if (word.size() == 1 && word[0] > ' ' && word[0] <= '~') return word[0];
  throw ScriptError("no key " + excerpt(word));
}

void key(const Call& call) {
  for (const auto word : call.words) report(call.session().desktop.key(parseKey(word)));
}

void scroll(const Call& call) {
  ScrollBar& bar = call.session().window().sizePanel.bar;
  const int value = parseInteger(call.words[0], {bar.minimum, bar.maximum});
  report(call.session().desktop.scroll(bar, value));
}

void tick(const Call& call) {
  const int count = call.words.empty() ? 1 : parseInteger(call.words[0], {0, 1'000'000});
  for (int i = 0; i < count; ++i) {
    const Attempt attempt = call.session().desktop.tick();
    if (attempt) continue;
    if (attempt.refusal != Refusal::NotArmed) report(attempt);
    return;  // nothing arms the timer or starts the program between two ticks
  }
}

void close(const Call& call) {
  report(call.session().desktop.close(call.session().names().window(call.words[0])));
}

constexpr std::array<Command, 9> playerTable{{
    {"start", "start", 0, 0, false, start},
    {"menu", "menu NAME", 1, 1, true, menu},
    {"click", "click NAME", 1, 1, true, click},
    {"dblclick", "dblclick NAME", 1, 1, true, doubleClick},
    {"mousedown", "mousedown NAME", 1, 1, true, mouseDown},
    {"key", "key KEY ...", 1, anyNumber, true, key},
    {"scroll", "scroll N", 1, 1, true, scroll},
    {"tick", "tick [N]", 0, 1, true, tick},
    {"close", "close NAME", 1, 1, true, close},
}};

}  // namespace

std::span<const Command> playerCommands() { return playerTable; }

}  // namespace mevracard::script
