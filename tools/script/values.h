#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/control.h"

/// Values of a script line: read with nothing left over, or refused; written in one fixed form.
namespace mevracard::script {

/// A line that cannot be carried out; the text tells why and ends the run.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Range {
  int lowest, highest;
};

/// A complete decimal number within the range. Throws ScriptError.
[[nodiscard]] int parseInteger(std::string_view word, Range range);
/// A complete finite number from `lowest` to `highest`. Throws ScriptError.
[[nodiscard]] double parseDecimal(std::string_view word, double lowest, double highest);
/// A text in double quotes, with \r, \n, \" and \\ in it; blanks may follow. Throws ScriptError.
[[nodiscard]] std::string parseText(std::string_view text);

/// Up to 15 significant digits.
[[nodiscard]] std::string decimalText(double value);
/// Two decimals, for positions and sizes.
[[nodiscard]] std::string twipsText(float value);
[[nodiscard]] std::string flagText(bool value);
/// "RGB(192,255,192)"
[[nodiscard]] std::string colorText(Color color);
/// A piece of a faulty line, fit for an error message: short and printable.
[[nodiscard]] std::string excerpt(std::string_view text);

}  // namespace mevracard::script
