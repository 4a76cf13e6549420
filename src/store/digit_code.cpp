#include "store/digit_code.h"

#include <algorithm>
#include <array>

namespace mevracard {

namespace {

/// The code of each digit (column) at each position (row). No row repeats a code, so each decodes
/// to one digit; no column does, so a digit looks different at every position.
constexpr std::array<std::array<std::string_view, 10>, 6> codeTable{{
    {"54", "91", "10", "69", "59", "79", "17", "57", "68", "47"},
    {"71", "30", "15", "39", "70", "81", "59", "87", "10", "72"},
    {"53", "36", "23", "15", "37", "99", "91", "22", "46", "96"},
    {"50", "95", "67", "46", "48", "94", "89", "61", "51", "88"},
    {"74", "44", "72", "24", "57", "25", "11", "53", "64", "38"},
    {"98", "39", "78", "19", "81", "83", "21", "85", "29", "75"},
}};

}  // namespace

std::string encodeDigits(std::string_view digits) {
  std::string text;
  for (std::size_t n = 0; n < std::min(digits.size(), codeTable.size()); ++n) {
    if (digits[n] < '0' || digits[n] > '9') continue;
    text += codeTable[n][static_cast<std::size_t>(digits[n] - '0')];
  }
  return text;
}

std::string decodeDigits(std::string_view text) {
  std::string digits;
  for (std::size_t n = 0; n < std::min(text.size() / 2, codeTable.size()); ++n) {
    const auto& row = codeTable[n];
    const auto found = std::find(row.begin(), row.end(), text.substr(2 * n, 2));
    if (found != row.end()) digits += static_cast<char>('0' + (found - row.begin()));
  }
  return digits;
}

}  // namespace mevracard
