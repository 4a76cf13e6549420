#include "store/statistics.h"

#include <algorithm>

#include "game/leading_number.h"
#include "store/digit_code.h"

namespace mevracard {

namespace {

constexpr std::size_t codedLength = 12;
constexpr std::size_t lineEndLength = 2;
constexpr int mostGames = 998;

/// The two counts as they stand in the record, three digits each unless the record is torn.
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

}  // namespace

std::string emptyRecordText() { return encodeDigits("000000") + "\r\n"; }

RecordUpdate updatedRecord(std::string_view fileText, RecordMode mode) {
  const Counts counts = countsOf(fileText);
  const int won = numberOf(counts.won);
  const int lost = numberOf(counts.lost);
  const bool full = won + lost > mostGames;

  std::string digits;
  if (mode == RecordMode::Clear) {
    digits = "000000";
  } else if (full) {
    // QUIRK-28: the two counts have become numbers, so joining them adds them: the record holds the
    // single digit 1. One would expect "001000" or "000001"; the next window shows 1 game won and
    // 1 lost, and the results after it join that short record just as it stands. Meant.
    digits = "1";
  } else if (mode == RecordMode::Won) {
    digits = padded(won + 1) + counts.lost;
  } else {
    digits = counts.won + padded(lost + 1);
  }
  return {encodeDigits(digits) + restOf(fileText) + "\r\n", full};
}

Figures figuresOf(std::string_view fileText) {
  const Counts counts = countsOf(fileText);
  Figures figures{numberOf(counts.won), numberOf(counts.lost), 0, 0};
  const int total = figures.won + figures.lost;
  if (total == 0) return figures;
  // QUIRK-34: both are cut off, so that they may add up to 99. Meant.
  figures.wonPercent = figures.won * 100 / total;
  figures.lostPercent = figures.lost * 100 / total;
  return figures;
}

}  // namespace mevracard
