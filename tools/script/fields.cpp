#include "script/fields.h"

#include <array>
#include <span>
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

struct Whole {
  std::string_view name;
  int GameState::*field;
  Range range = anyCount;
};

struct Optional {
  std::string_view name;
  std::optional<int> GameState::*field;
  Range range = anyCount;
};

struct Decimal {
  std::string_view name;
  double GameState::*field;
};

struct Array {
  std::string_view name;
  std::span<int> (*elements)(GameState& s);
  Range range = anyCount;
};

constexpr std::array<Whole, 24> wholes{{
    {"lina", &GameState::lina},
    {"linb", &GameState::linb},
    {"kjumlah", &GameState::kjumlah},
    {"moveMade", &GameState::moveMade},
    {"playCard", &GameState::playCard, slot},
    {"layPosition", &GameState::layPosition},
    {"layColumn", &GameState::layColumn},
    {"leftEndChosen", &GameState::leftEndChosen},
    {"ngisor", &GameState::ngisor},
    {"selectedCard", &GameState::selectedCard, slot},
    {"theend", &GameState::theend},
    {"screenHeight", &GameState::screenHeight},
    {"twipsPerPixel", &GameState::twipsPerPixel},
    {"screenValue", &GameState::screenValue},
    {"computerPassed", &GameState::computerPassed},
    {"larangan", &GameState::larangan},
    {"bahaya", &GameState::bahaya},
    {"bahaya2", &GameState::bahaya2},
    {"tutorialActive", &GameState::tutorialActive},
    {"demoMove", &GameState::demoMove},
    {"demoTick", &GameState::demoTick},
    {"demoDone", &GameState::demoDone},
    {"demoBusy", &GameState::demoBusy},
    {"tutorialDeal", &GameState::tutorialDeal},
}};

constexpr std::array<Optional, 3> optionals{{
    {"k0", &GameState::k0, slot},
    {"k1", &GameState::k1, slot},
    {"firstDealDone", &GameState::firstDealDone},
}};

constexpr std::array<Decimal, 5> decimals{{
    {"dealSeed", &GameState::dealSeed},
    {"n1", &GameState::n1},
    {"n2", &GameState::n2},
    {"n3", &GameState::n3},
    {"n4", &GameState::n4},
}};

constexpr std::array<Array, 5> arrays{{
    {"a", [](GameState& s) { return std::span<int>(s.a); }, cardNumber},
    {"b", [](GameState& s) { return std::span<int>(s.b); }, cardNumber},
    {"held", [](GameState& s) { return std::span<int>(s.held); }},
    {"kotak", [](GameState& s) { return std::span<int>(s.kotak); }},
    {"sisa", [](GameState& s) { return std::span<int>(s.sisa); }},
}};

template <typename Target>
struct Place {
  Target* target;
  Range range;
};

using Field =
    std::variant<std::monostate, Place<int>, Place<std::optional<int>>, double*, std::string*>;

template <typename Table>
auto findRow(const Table& table, std::string_view name) {
  const auto* row = table.begin();
  while (row != table.end() && row->name != name) ++row;
  return row == table.end() ? nullptr : row;
}

/// "held(3)" is element 3 of the array; the name must be written as it is shown.
Field findElement(GameState& s, std::string_view name) {
  for (const auto& row : arrays) {
    const auto elements = row.elements(s);
    if (!name.starts_with(std::string(row.name) + "(")) continue;
    for (std::size_t i = 0; i < elements.size(); ++i) {
      if (name == std::string(row.name) + "(" + std::to_string(i) + ")") {
        return Place<int>{&elements[i], row.range};
      }
    }
  }
  return {};
}

Field findField(GameState& s, std::string_view name) {
  if (const auto* row = findRow(wholes, name)) return Place<int>{&(s.*row->field), row->range};
  if (const auto* row = findRow(optionals, name)) {
    return Place<std::optional<int>>{&(s.*row->field), row->range};
  }
  if (const auto* row = findRow(decimals, name)) return &(s.*row->field);
  if (name == "tipText") return &s.tipText;
  return findElement(s, name);
}

struct TextOf {
  std::optional<std::string> operator()(std::monostate) const { return std::nullopt; }
  std::optional<std::string> operator()(Place<int> place) const {
    return std::to_string(*place.target);
  }
  std::optional<std::string> operator()(Place<std::optional<int>> place) const {
    return *place.target ? std::to_string(**place.target) : quoted("");
  }
  std::optional<std::string> operator()(const double* field) const { return decimalText(*field); }
  std::optional<std::string> operator()(const std::string* field) const { return quoted(*field); }
};

struct Writer {
  std::string_view name, value;

  void operator()(std::monostate) const { throw ScriptError("no field " + excerpt(name)); }
  void operator()(Place<int> place) const { *place.target = parseInteger(value, place.range); }
  void operator()(Place<std::optional<int>> place) const {
    *place.target =
        value == quoted("") ? std::nullopt : std::optional(parseInteger(value, place.range));
  }
  void operator()(double* field) const {
    *field = parseDecimal(value, -largestDecimal, largestDecimal);
  }
  void operator()(std::string* field) const { *field = parseText(value); }
};

void checkLevel(MenuEntry& first, MenuEntry& second, std::string_view value) {
  const int level = parseInteger(value, {1, 2});
  first.checked = level == 1;
  second.checked = level == 2;
}

}  // namespace

std::optional<std::string> fieldText(MainWindow& w, std::string_view name) {
  if (name == "scaleFactor") return decimalText(w.scaleFactor());
  return std::visit(TextOf{}, findField(w.state, name));
}

void setField(MainWindow& w, std::string_view name, std::string_view value) {
  if (name == "scaleFactor") throw ScriptError("scaleFactor follows from screenValue");
  if (name == "computerLevel") return checkLevel(w.cl1, w.cl2, value);
  if (name == "playerLevel") return checkLevel(w.pl1, w.pl2, value);
  std::visit(Writer{name, value}, findField(w.state, name));
}

}  // namespace mevracard::script
