#pragma once

#include <string>
#include <string_view>

/// The substitution code of the statistics file: each digit becomes two characters that depend on
/// its position (1 to 6).
namespace mevracard {

/// Characters that are no digit, or stand after the sixth position, are left out.
[[nodiscard]] std::string encodeDigits(std::string_view digits);
/// Takes the text two characters at a time. A pair that is no code of its position is left out.
[[nodiscard]] std::string decodeDigits(std::string_view text);

}  // namespace mevracard
