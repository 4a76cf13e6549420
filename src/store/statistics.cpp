#include "store/statistics.h"

#include <algorithm>

#include "game/leading_number.h"
#include "store/digit_code.h"

namespace mevracard {

namespace {

constexpr std::size_t codedLength = 12;
constexpr std::size_t lineEndLength = 2;
constexpr int mostGames = 998;

/// The two counts as they stand in the file, three digits each unless it is torn.
struct Counts {
  std::string won, lost;
};

int numberOf(std::string_view digits) { return static_cast<int>(leadingNumber(digits)); }

Counts countsOf(std::string_view fileText) {
  const std::string digits = decodeDigits(fileText.substr(0, codedLength));
  return {digits.substr(0, 3),
          digits.substr(digits.size() - std::min<std::size_t>(3, digits.size()))};
}

/// Three digits with leading zeros; a longer number is no count and gives an empty text.
std::string padded(int number) {
  const std::string digits = std::to_string(number);
  return digits.size() > 3 ? "" : std::string(3 - digits.size(), '0') + digits;
}

std::string restOf(std::string_view fileText) {
  if (fileText.size() < codedLength + lineEndLength) return "";
  return std::string(fileText.substr(codedLength, fileText.size() - codedLength - lineEndLength));
}

std::string withCounts(std::string_view fileText, std::string_view digits) {
  return encodeDigits(digits) + restOf(fileText) + "\r\n";
}

}  // namespace

Statistics statisticsOf(std::string_view fileText) {
  const Counts counts = countsOf(fileText);
  Statistics statistics{numberOf(counts.won), numberOf(counts.lost), 0, 0};
  const int total = statistics.won + statistics.lost;
  if (total == 0) return statistics;
  // QUIRK-34: both are cut off, so that they may add up to 99.
  statistics.wonPercent = statistics.won * 100 / total;
  statistics.lostPercent = statistics.lost * 100 / total;
  return statistics;
}

bool countsAreFull(std::string_view fileText) {
  const Statistics statistics = statisticsOf(fileText);
  return statistics.won + statistics.lost > mostGames;
}

std::string withResult(std::string_view fileText, GameResult result) {
  // QUIRK-28: the two counts have become numbers, so joining them adds them: the file holds the
  // single digit 1. One would expect "001000" or "000001"; the next window shows 1 game won and 1
  // lost, and the results after it join that short text just as it stands.
  if (countsAreFull(fileText)) return withCounts(fileText, "1");
  const auto [won, lost] = countsOf(fileText);
  return withCounts(fileText, result == GameResult::Won ? padded(numberOf(won) + 1) + lost
                                                        : won + padded(numberOf(lost) + 1));
}

std::string withoutResults(std::string_view fileText) { return withCounts(fileText, "000000"); }

std::string emptyStatisticsText() { return withoutResults(""); }

}  // namespace mevracard
