#include "script/values.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace mevracard::script {

namespace {

template <typename Number>
Number parseWhole(std::string_view word, Number lowest, Number highest) {
  Number value{};
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, value);
  // Written so that a NaN is refused as well.
  if (error == std::errc{} && stop == end && value >= lowest && value <= highest) return value;
  throw ScriptError(excerpt(word) + " is not a number that fits here");
}

template <typename... Values>
std::string formatted(const char* format, Values... values) {
  std::array<char, 80> text{};
  const int length = std::snprintf(text.data(), text.size(), format, values...);
  return {text.data(), static_cast<std::size_t>(length)};
}

char unescaped(char c) {
  switch (c) {
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    case '"':
    case '\\':
      return c;
    default:
      throw ScriptError("a text has an unknown \\ sequence");
  }
}

}  // namespace

int parseInteger(std::string_view word, Range range) {
  return parseWhole(word, range.lowest, range.highest);
}

double parseDecimal(std::string_view word, double lowest, double highest) {
  return parseWhole(word, lowest, highest);
}

std::string parseText(std::string_view text) {
  if (text.empty() || text.front() != '"') throw ScriptError("a text in double quotes is wanted");
  std::string value;
  std::size_t i = 1;
  while (i < text.size() && text[i] != '"') {
    const bool escape = text[i] == '\\' && i + 1 < text.size();
    if (escape) ++i;
    value += escape ? unescaped(text[i]) : text[i];
    ++i;
  }
  if (i >= text.size()) throw ScriptError("a text has no closing double quote");
  if (text.find_first_not_of(" \t", i + 1) != std::string_view::npos) {
    throw ScriptError("something follows the closing double quote");
  }
  return value;
}

std::string decimalText(double value) { return formatted("%.15g", value); }

std::string twipsText(float value) {
  const std::string text = formatted("%.2f", static_cast<double>(value));
  return text == "-0.00" ? "0.00" : text;
}

std::string flagText(bool value) { return value ? "1" : "0"; }

std::string colorText(Color color) {
  return formatted("RGB(%d,%d,%d)", color.red, color.green, color.blue);
}

std::string excerpt(std::string_view text) {
  if (text.empty()) return "(nothing)";
  constexpr std::size_t longest = 40;
  std::string shown(text.substr(0, longest));
  for (char& c : shown) {
    if (c < ' ' || c > '~') c = '?';
  }
  return text.size() > longest ? shown + "..." : shown;
}

}  // namespace mevracard::script
