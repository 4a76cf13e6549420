#include <array>

#include "script/commands.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

World& world(const Call& call) { return call.session().desktop.world; }

void screen(const Call& call) {
  // A million twips is more than 17 metres; more would only strain the arithmetic.
  const int height = parseInteger(call.words[0], {1, 1'000'000});
  const int twipsPerPixel = parseInteger(call.words[1], {1, 32767});
  world(call).screenHeight = height;
  world(call).twipsPerPixel = twipsPerPixel;
}

void date(const Call& call) { world(call).date = call.text; }

void time(const Call& call) {
  world(call).time = {parseInteger(call.words[0], {0, 59}), parseInteger(call.words[1], {0, 59})};
}

void random(const Call& call) {
  std::vector<double> draws;
  for (const auto word : call.words) {
    const double draw = parseDecimal(word, 0, 1);
    if (draw == 1) throw ScriptError("a draw lies below 1");
    draws.push_back(draw);
  }
  auto& queue = world(call).draws;
  queue.insert(queue.end(), draws.begin(), draws.end());
}

std::pair<int, int> parsePair(std::string_view word) {
  const auto isNumber = [](char c) { return c >= '0' && c <= '6'; };
  if (word.size() != 3 || !isNumber(word[0]) || word[1] != '-' || !isNumber(word[2]) ||
      word[0] > word[2]) {
    throw ScriptError(excerpt(word) + " is no pair A-B with A not above B");
  }
  return {word[0] - '0', word[2] - '0'};
}

void deal(const Call& call) {
  if (call.words.empty()) return call.session().stackDeck(std::nullopt);
  if (call.words.size() != cardCount) throw ScriptError("a deal has 28 pairs");
  Deck deck;
  for (std::size_t i = 0; i < deck.size(); ++i) {
    deck[i] = parsePair(call.words[i]);
    for (std::size_t before = 0; before < i; ++before) {
      if (deck[before] == deck[i]) throw ScriptError(std::string(call.words[i]) + " comes twice");
    }
  }
  call.session().stackDeck(deck);
}

void file(const Call& call) {
  world(call).files.insert_or_assign(std::string(call.words[0]),
                                     parseText(afterFirstWord(call.text)));
}

void nofile(const Call& call) { world(call).files.erase(std::string(call.words[0])); }

void refuse(const Call& call) {
  const std::string_view access = call.words[0];
  if (access != "read" && access != "write") throw ScriptError("refuse read or write");
  auto& refused = access == "read" ? world(call).unreadable : world(call).unwritable;
  refused.emplace(call.words[1]);
}

void allow(const Call& call) {
  world(call).unreadable.erase(std::string(call.words[0]));
  world(call).unwritable.erase(std::string(call.words[0]));
}

void pointer(const Call& call) {
  const std::string_view word = call.words[0];
  // Without a screen, a pointer that is drawn and one that is moved are the same.
  if (word != "yes" && word != "no") throw ScriptError("pointer yes or no");
}

void speech(const Call& call) {
  const std::string_view word = call.words[0];
  if (word != "on" && word != "off") throw ScriptError("speech on or off");
  world(call).speaks = word == "on";
  if (call.session().desktop.running()) call.session().window().present();
}

void watch(const Call& call) {
  const std::string_view word = call.words[0];
  if (word != "on" && word != "off") throw ScriptError("watch on or off");
  call.session().watched = word == "on";
}

void reset(const Call& call) {
  const bool watched = call.session().watched;
  call.slot = std::make_unique<Session>();
  call.session().watched = watched;
}

void echo(const Call& call) { print(call.text); }

constexpr std::array<Command, 14> worldTable{{
    {"screen", "screen HEIGHT TPP", 2, 2, false, screen},
    {"date", "date TEXT", 1, anyNumber, false, date},
    {"time", "time MINUTE SECOND", 2, 2, false, time},
    {"random", "random R ...", 1, anyNumber, false, random},
    {"deal", "deal A-B ...", 0, anyNumber, false, deal},
    {"file", "file NAME \"TEXT\"", 2, anyNumber, false, file},
    {"nofile", "nofile NAME", 1, 1, false, nofile},
    {"refuse", "refuse read|write NAME", 2, 2, false, refuse},
    {"allow", "allow NAME", 1, 1, false, allow},
    {"pointer", "pointer yes|no", 1, 1, false, pointer},
    {"speech", "speech on|off", 1, 1, false, speech},
    {"watch", "watch on|off", 1, 1, false, watch},
    {"reset", "reset", 0, 0, false, reset},
    {"echo", "echo TEXT", 0, anyNumber, false, echo},
}};

}  // namespace

std::span<const Command> worldCommands() { return worldTable; }

}  // namespace mevracard::script
