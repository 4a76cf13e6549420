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
constexpr auto rightTop = End::RightTop;
constexpr auto leftBottom = End::LeftBottom;
constexpr std::array fields{
    Field{"a",    [](GameState& s, int i) -> Place { return &s.card(i).upper; }, cardNumber, cardCount},
    Field{"b",    [](GameState& s, int i) -> Place { return &s.card(i).lower; }, cardNumber, cardCount},
    Field{"held", [](GameState& s, int i) -> Place { return &s.card(i).held; }, anyCount, cardCount},
    Field{"kotak", [](GameState& s, int i) -> Place { return &s.openNumber[static_cast<End>(i)]; }, anyCount, 2},
    Field{"k0",   [](GameState& s, int) -> Place { return &s.endCard[rightTop]; }, slot},
    Field{"k1",   [](GameState& s, int) -> Place { return &s.endCard[leftBottom]; }, slot},
    Field{"lina", [](GameState& s, int) -> Place { return &s.laidAt[rightTop]; }},
    Field{"linb", [](GameState& s, int) -> Place { return &s.laidAt[leftBottom]; }},
    Field{"kjumlah", [](GameState& s, int) -> Place { return &s.openings; }},
    Field{"sisa", [](GameState& s, int i) -> Place {
            return &(i < 2 ? s.cardsLeft : s.passes)[static_cast<Side>(i % 2)]; }, anyCount, 4},
    Field{"theend", [](GameState& s, int) -> Place { return &s.gameOver; }},
    Field{"playCard", [](GameState& s, int) -> Place { return &s.playCard; }, slot},
    Field{"moveMade", [](GameState& s, int) -> Place { return &s.cardWasLaid; }},
    Field{"layPosition", [](GameState& s, int) -> Place { return &s.layPosition; }},
    Field{"layColumn", [](GameState& s, int) -> Place { return &s.layColumn; }},
    Field{"leftEndChosen", [](GameState& s, int) -> Place { return &s.playerAimsLeftBottom; }},
    Field{"ngisor", [](GameState& s, int) -> Place { return &s.computerAimsLeftBottom; }},
    Field{"selectedCard", [](GameState& s, int) -> Place { return &s.selectedCard; }, slot},
    Field{"tipText", [](GameState& s, int) -> Place { return &s.tipText; }},
    Field{"computerPassed", [](GameState& s, int) -> Place { return &s.computerPassed; }},
    Field{"larangan", [](GameState& s, int) -> Place { return &s.bannedNumber; }},
    Field{"bahaya", [](GameState& s, int) -> Place { return &s.danger; }},
    Field{"bahaya2", [](GameState& s, int) -> Place { return &s.secondDanger; }},
    Field{"tutorialActive", [](GameState& s, int) -> Place { return &s.tutorial.computerWaitsForNext; }},
    Field{"tutorialDeal", [](GameState& s, int) -> Place { return &s.tutorial.untilFirstCard; }},
    Field{"demoMove", [](GameState& s, int) -> Place { return &s.tutorial.nextIsComputers; }},
    Field{"demoBusy", [](GameState& s, int) -> Place { return &s.demo.busy; }},
    Field{"demoDone", [](GameState& s, int) -> Place { return &s.demo.done; }},
    Field{"demoTick", [](GameState& s, int) -> Place { return &s.demo.tick; }},
    Field{"n1", [](GameState& s, int) -> Place { return &s.demo.offset.x; }},
    Field{"n2", [](GameState& s, int) -> Place { return &s.demo.offset.y; }},
    Field{"n3", [](GameState& s, int) -> Place { return &s.demo.start.x; }},
    Field{"n4", [](GameState& s, int) -> Place { return &s.demo.start.y; }},
    Field{"dealSeed", [](GameState& s, int) -> Place { return &s.dealSeed; }},
    Field{"firstDealDone", [](GameState& s, int) -> Place { return LateFlag{&s.newGameAsked}; }},
    Field{"screenHeight", [](GameState& s, int) -> Place { return &s.screenHeight; }},
    Field{"twipsPerPixel", [](GameState& s, int) -> Place { return &s.twipsPerPixel; }},
    Field{"screenValue", [](GameState& s, int) -> Place { return &s.screenValue; }},
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
  if (name == "scaleFactor") return decimalText(w.scaleFactor());
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
