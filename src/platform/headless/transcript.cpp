#include "platform/headless/transcript.h"

namespace mevracard {

std::string quoted(std::string_view text) {
  std::string line = "\"";
  for (const char c : text) {
    switch (c) {
      case '\r':
        line += "\\r";
        break;
      case '\n':
        line += "\\n";
        break;
      case '"':
        line += "\\\"";
        break;
      case '\\':
        line += "\\\\";
        break;
      default:
        line += c;
    }
  }
  return line + '"';
}

}  // namespace mevracard
