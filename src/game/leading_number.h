#pragma once

#include <string_view>

namespace mevracard {

/// The number that a text begins with: blanks, a sign, digits, a point, digits; 0 if there is none.
/// Whatever follows is ignored.
[[nodiscard]] inline double leadingNumber(std::string_view text) {
  double value = 0;
  double unit = 0;  // 0 before the point, then the worth of the next digit
  bool negative = false;
  bool begun = false;
  for (const char c : text) {
    if (c == ' ') continue;
    if (c >= '0' && c <= '9') {
      if (unit == 0) {
        value = value * 10 + (c - '0');
      } else {
        value += unit * (c - '0');
        unit /= 10;
      }
    } else if (c == '.' && unit == 0) {
      unit = 0.1;
    } else if ((c == '-' || c == '+') && !begun) {
      negative = c == '-';
    } else {
      break;
    }
    begun = true;
  }
  return negative ? -value : value;
}

}  // namespace mevracard
