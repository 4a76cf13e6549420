#include "simulate/request.h"

#include <array>
#include <charconv>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace mevracard::simulate {

namespace {

struct Range {
  std::uint64_t lowest, highest;
};

std::uint64_t parseNumber(std::string_view word, Range range) {
  std::uint64_t number = 0;
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  if (error != std::errc() || stop != end || number < range.lowest || number > range.highest) {
    throw std::runtime_error("a number from " + std::to_string(range.lowest) + " to " +
                             std::to_string(range.highest) + " is wanted");
  }
  return number;
}

Style parseStyle(std::string_view word) {
  constexpr std::array<std::pair<std::string_view, Style>, 3> styles{
      {{"first", Style::First}, {"random", Style::Random}, {"greedy", Style::Greedy}}};
  for (const auto& [name, style] : styles) {
    if (name == word) return style;
  }
  throw std::runtime_error("the player is first, random or greedy");
}

void takeLine(Request& request, const std::string& line) {
  std::istringstream words(line);
  std::string name, value, more;
  if (!(words >> name) || name[0] == '#') return;
  if (!(words >> value) || words >> more) throw std::runtime_error("wanted: WORD VALUE");
  if (name == "games") {
    request.games = static_cast<int>(parseNumber(value, {1, 100'000'000}));
  } else if (name == "level") {
    request.level = static_cast<int>(parseNumber(value, {1, 2}));
  } else if (name == "seed") {
    request.seed = parseNumber(value, {0, UINT64_MAX});
  } else if (name == "player") {
    request.player = parseStyle(value);
  } else if (name == "watch") {
    request.watch = parseNumber(value, {0, 1}) == 1;
  } else {
    throw std::runtime_error("the words are games, level, seed, player and watch");
  }
}

}  // namespace

Request readRequest(std::istream& in) {
  Request request;
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    try {
      takeLine(request, line);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error("line " + std::to_string(number) + ": " + error.what());
    }
  }
  return request;
}

}  // namespace mevracard::simulate
