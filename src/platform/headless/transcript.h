#pragma once

#include <string>
#include <string_view>

namespace mevracard {

/// The text in double quotes, with \r, \n, \" and \\ for the characters that would not stand in one
/// line of a transcript.
[[nodiscard]] std::string quoted(std::string_view text);

}  // namespace mevracard
