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
constexpr Range tableSize{1, 1'000'000};
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
  Place (*placeIn)(Game& g, TableState& s, int i);
  Range range = anyCount;
  int elements = 1;
};

// clang-format off
using G = Game;
using S = TableState;
constexpr auto rightTop = End::RightTop;
constexpr auto leftBottom = End::LeftBottom;
constexpr std::array fields{
    Field{"a",    [](G& g, S&, int i) -> Place { return &g.card(i).upper; }, cardNumber, cardCount},
    Field{"b",    [](G& g, S&, int i) -> Place { return &g.card(i).lower; }, cardNumber, cardCount},
    Field{"held", [](G& g, S&, int i) -> Place { return &g.card(i).held; }, anyCount, cardCount},
    Field{"kotak", [](G& g, S&, int i) -> Place { return &g.chain.openNumber[End(i)]; }, anyCount, 2},
    Field{"k0",   [](G& g, S&, int) -> Place { return &g.chain.endCard[rightTop]; }, slot},
    Field{"k1",   [](G& g, S&, int) -> Place { return &g.chain.endCard[leftBottom]; }, slot},
    Field{"lina", [](G& g, S&, int) -> Place { return &g.chain.laidAt[rightTop]; }},
    Field{"linb", [](G& g, S&, int) -> Place { return &g.chain.laidAt[leftBottom]; }},
    Field{"kjumlah", [](G& g, S&, int) -> Place { return &g.chain.openings; }},
    Field{"sisa", [](G& g, S&, int i) -> Place {
            return &(i < 2 ? g.counts.cardsLeft : g.counts.passes)[Side(i % 2)]; }, anyCount, 4},
    Field{"theend", [](G& g, S&, int) -> Place { return &g.ending.over; }},
    Field{"playCard", [](G&, S& s, int) -> Place { return &s.lastOffer.card; }, slot},
    Field{"moveMade", [](G&, S& s, int) -> Place { return &s.lastOffer.laid; }},
    Field{"layPosition", [](G&, S& s, int) -> Place { return &s.layPosition; }},
    Field{"layColumn", [](G&, S& s, int) -> Place { return &s.layColumn; }},
    Field{"leftEndChosen", [](G& g, S&, int) -> Place { return &g.aimsLeftBottom[Side::Player]; }},
    Field{"ngisor", [](G& g, S&, int) -> Place { return &g.aimsLeftBottom[Side::Computer]; }},
    Field{"selectedCard", [](G&, S& s, int) -> Place { return &s.selectedCard; }, slot},
    Field{"tipText", [](G&, S& s, int) -> Place { return &s.tipText; }},
    Field{"computerPassed", [](G& g, S&, int) -> Place { return &g.mind.hasPassed; }},
    Field{"larangan", [](G& g, S&, int) -> Place { return &g.mind.bannedNumber; }},
    Field{"bahaya", [](G& g, S&, int) -> Place { return &g.mind.danger; }},
    Field{"bahaya2", [](G& g, S&, int) -> Place { return &g.mind.secondDanger; }},
    Field{"tutorialActive", [](G&, S& s, int) -> Place { return &s.tutorial.computerWaitsForNext; }},
    Field{"tutorialDeal", [](G&, S& s, int) -> Place { return &s.tutorial.untilFirstCard; }},
    Field{"demoMove", [](G&, S& s, int) -> Place { return &s.tutorial.nextIsComputers; }},
    Field{"demoBusy", [](G&, S& s, int) -> Place { return &s.demo.busy; }},
    Field{"demoDone", [](G&, S& s, int) -> Place { return &s.demo.done; }},
    Field{"demoTick", [](G&, S& s, int) -> Place { return &s.demo.tick; }},
    Field{"n1", [](G&, S& s, int) -> Place { return &s.demo.offset.x; }},
    Field{"n2", [](G&, S& s, int) -> Place { return &s.demo.offset.y; }},
    Field{"n3", [](G&, S& s, int) -> Place { return &s.demo.start.x; }},
    Field{"n4", [](G&, S& s, int) -> Place { return &s.demo.start.y; }},
    Field{"dealSeed", [](G& g, S&, int) -> Place { return &g.dealSeed; }},
    Field{"firstDealDone", [](G&, S& s, int) -> Place { return LateFlag{&s.newGameAsked}; }},
    Field{"screenHeight", [](G&, S& s, int) -> Place { return &s.screenHeight; }},
    Field{"twipsPerPixel", [](G&, S& s, int) -> Place { return &s.twipsPerPixel; }},
    Field{"screenValue", [](G&, S& s, int) -> Place { return &s.tableSize; }, tableSize},
};
// clang-format on

struct Found {
  Place place;
  Range range;
};

/// "held(3)" is element 3 of the array.
std::string nameOf(const Field& field, int i) {
  return std::string(field.name) + (field.elements == 1 ? "" : "(" + std::to_string(i) + ")");
}

/// The name must be written as it is shown.
std::optional<Found> find(MainWindow& w, std::string_view name) {
  for (const Field& field : fields) {
    if (!name.starts_with(field.name)) continue;
    for (int i = 0; i < field.elements; ++i) {
      if (name == nameOf(field, i)) {
        return Found{field.placeIn(w.game, w.state, i), field.range};
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
  const auto found = find(w, name);
  if (!found) return std::nullopt;
  return std::visit(TextOf{}, found->place);
}

std::vector<std::string> fieldLines(MainWindow& w) {
  std::vector<std::string> lines{"scaleFactor = " + decimalText(w.scale())};
  for (const Field& field : fields) {
    for (int i = 0; i < field.elements; ++i) {
      lines.push_back(nameOf(field, i) + " = " +
                      std::visit(TextOf{}, field.placeIn(w.game, w.state, i)));
    }
  }
  return lines;
}

void setField(MainWindow& w, std::string_view name, std::string_view value) {
  constexpr Range level{1, 2};
  if (name == "scaleFactor") throw ScriptError("scaleFactor follows from screenValue");
  if (name == "computerLevel") {
    w.game.levels.computer = parseInteger(value, level);
  } else if (name == "playerLevel") {
    w.game.levels.player = parseInteger(value, level);
  } else if (const auto found = find(w, name)) {
    std::visit(Writer{value, found->range}, found->place);
  } else {
    throw ScriptError("no field " + excerpt(name));
  }
}

}  // namespace mevracard::script
