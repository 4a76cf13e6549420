#include "script/fields.h"

#include <array>
#include <variant>

#include "platform/headless/transcript.h"
#include "script/values.h"

namespace mevracard::script {

namespace {

// A set-up is free in what it means, but a card that is not in the set or a slot that no array has
// cannot be stored at all. Counts have room enough for any arithmetic on the table.
constexpr Range anyCount{-1'000'000, 1'000'000};
constexpr Range cardNumber{0, 6};
constexpr Range slot{0, cardCount - 1};
constexpr double largestDecimal = 1e6;

/// A flag that a script reads as empty until it is set.
struct LateFlag {
  bool* flag;
};

/// Where a field lies. A script writes flags as 0 and anything else, and reads 0 and 1.
using Place = std::variant<int*, bool*, LateFlag, std::optional<int>*, double*, std::string*>;

/// A field by its script name; an array has more than one element.
struct Field {
  std::string_view name;
  Place (*placeIn)(GameState& s, int i);
  Range range = anyCount;
  int elements = 1;
};

// clang-format off
using S = GameState;
constexpr auto rightTop = End::RightTop;
constexpr auto leftBottom = End::LeftBottom;
constexpr std::array fields{
    Field{"a",    [](S& s, int i) -> Place { return &s.card(i).upper; }, cardNumber, cardCount},
    Field{"b",    [](S& s, int i) -> Place { return &s.card(i).lower; }, cardNumber, cardCount},
    Field{"held", [](S& s, int i) -> Place { return &s.card(i).held; }, anyCount, cardCount},
    Field{"kotak", [](S& s, int i) -> Place { return &s.openNumber[End(i)]; }, anyCount, 2},
    Field{"k0",   [](S& s, int) -> Place { return &s.endCard[rightTop]; }, slot},
    Field{"k1",   [](S& s, int) -> Place { return &s.endCard[leftBottom]; }, slot},
    Field{"lina", [](S& s, int) -> Place { return &s.laidAt[rightTop]; }},
    Field{"linb", [](S& s, int) -> Place { return &s.laidAt[leftBottom]; }},
    Field{"kjumlah", [](S& s, int) -> Place { return &s.openings; }},
    Field{"sisa", [](S& s, int i) -> Place {
            return &(i < 2 ? s.cardsLeft : s.passes)[Side(i % 2)]; }, anyCount, 4},
    Field{"theend", [](S& s, int) -> Place { return &s.gameOver; }},
    Field{"playCard", [](S& s, int) -> Place { return &s.playCard; }, slot},
    Field{"moveMade", [](S& s, int) -> Place { return &s.cardWasLaid; }},
    Field{"layPosition", [](S& s, int) -> Place { return &s.layPosition; }},
    Field{"layColumn", [](S& s, int) -> Place { return &s.layColumn; }},
    Field{"leftEndChosen", [](S& s, int) -> Place { return &s.playerAimsLeftBottom; }},
    Field{"ngisor", [](S& s, int) -> Place { return &s.computerAimsLeftBottom; }},
    Field{"selectedCard", [](S& s, int) -> Place { return &s.selectedCard; }, slot},
    Field{"tipText", [](S& s, int) -> Place { return &s.tipText; }},
    Field{"computerPassed", [](S& s, int) -> Place { return &s.computerPassed; }},
    Field{"larangan", [](S& s, int) -> Place { return &s.bannedNumber; }},
    Field{"bahaya", [](S& s, int) -> Place { return &s.danger; }},
    Field{"bahaya2", [](S& s, int) -> Place { return &s.secondDanger; }},
    Field{"tutorialActive", [](S& s, int) -> Place { return &s.tutorial.computerWaitsForNext; }},
    Field{"tutorialDeal", [](S& s, int) -> Place { return &s.tutorial.untilFirstCard; }},
    Field{"demoMove", [](S& s, int) -> Place { return &s.tutorial.nextIsComputers; }},
    Field{"demoBusy", [](S& s, int) -> Place { return &s.demo.busy; }},
    Field{"demoDone", [](S& s, int) -> Place { return &s.demo.done; }},
    Field{"demoTick", [](S& s, int) -> Place { return &s.demo.tick; }},
    Field{"n1", [](S& s, int) -> Place { return &s.demo.offset.x; }},
    Field{"n2", [](S& s, int) -> Place { return &s.demo.offset.y; }},
    Field{"n3", [](S& s, int) -> Place { return &s.demo.start.x; }},
    Field{"n4", [](S& s, int) -> Place { return &s.demo.start.y; }},
    Field{"dealSeed", [](S& s, int) -> Place { return &s.dealSeed; }},
    Field{"firstDealDone", [](S& s, int) -> Place { return LateFlag{&s.newGameAsked}; }},
    Field{"screenHeight", [](S& s, int) -> Place { return &s.screenHeight; }},
    Field{"twipsPerPixel", [](S& s, int) -> Place { return &s.twipsPerPixel; }},
    Field{"screenValue", [](S& s, int) -> Place { return &s.tableSize; }},
};
// clang-format on

struct Found {
  Place place;
  Range range;
};

/// "held(3)" is element 3 of the array; the name must be written as it is shown.
std::optional<Found> find(GameState& s, std::string_view name) {
  for (const Field& field : fields) {
    if (!name.starts_with(field.name)) continue;
    if (field.elements == 1 && name == field.name) return Found{field.placeIn(s, 0), field.range};
    for (int i = 0; field.elements > 1 && i < field.elements; ++i) {
      if (name == std::string(field.name) + "(" + std::to_string(i) + ")") {
        return Found{field.placeIn(s, i), field.range};
      }
    }
  }
  return std::nullopt;
}

struct TextOf {
  std::string operator()(const int* number) const { return std::to_string(*number); }
  std::string operator()(const bool* flag) const { return flagText(*flag); }
  std::string operator()(LateFlag late) const { return *late.flag ? flagText(true) : quoted(""); }
  std::string operator()(const std::optional<int>* number) const {
    return *number ? std::to_string(**number) : quoted("");
  }
  std::string operator()(const double* number) const { return decimalText(*number); }
  std::string operator()(const std::string* text) const { return quoted(*text); }
};

struct Writer {
  std::string_view value;
  Range range;

  void operator()(int* number) const { *number = parseInteger(value, range); }
  void operator()(bool* flag) const { *flag = parseInteger(value, range) != 0; }
  void operator()(LateFlag late) const {
    *late.flag = value != quoted("") && parseInteger(value, range) != 0;
  }
  void operator()(std::optional<int>* number) const {
    *number = value == quoted("") ? std::nullopt : std::optional(parseInteger(value, range));
  }
  void operator()(double* number) const {
    *number = parseDecimal(value, -largestDecimal, largestDecimal);
  }
  void operator()(std::string* text) const { *text = parseText(value); }
};

}  // namespace

std::optional<std::string> fieldText(MainWindow& w, std::string_view name) {
  if (name == "scaleFactor") return decimalText(w.scale());
  const auto found = find(w.state, name);
  if (!found) return std::nullopt;
  return std::visit(TextOf{}, found->place);
}

void setField(MainWindow& w, std::string_view name, std::string_view value) {
  constexpr Range level{1, 2};
  if (name == "scaleFactor") throw ScriptError("scaleFactor follows from screenValue");
  if (name == "computerLevel") {
    w.state.computerLevel = parseInteger(value, level);
  } else if (name == "playerLevel") {
    w.state.playerLevel = parseInteger(value, level);
  } else if (const auto found = find(w.state, name)) {
    std::visit(Writer{value, found->range}, found->place);
  } else {
    throw ScriptError("no field " + excerpt(name));
  }
}

}  // namespace mevracard::script
