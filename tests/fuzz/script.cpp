// Any lines at all for the script front end: each is carried out or refused with a reason.
//
//     cmake --preset fuzz && cmake --build --preset fuzz
//     build/fuzz/tests/fuzz_script -max_total_time=600 -timeout=5 -max_len=3000 -only_ascii=1
//       FOUND tests/scenarios tests/fuzz/corpus/script
//
// FOUND is a folder for what it learns; a line that breaks anything is kept as crash-*.
#include <cstdint>
#include <iostream>

#include "script/commands.h"
#include "script/values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mevracard::script;
  std::cout.setstate(std::ios::failbit);  // what is printed is the scenarios' business
  std::string_view text(reinterpret_cast<const char*>(data), size);
  auto session = std::make_unique<Session>();
  try {
    while (!text.empty()) {
      const std::string_view line = text.substr(0, text.find('\n'));
      text.remove_prefix(std::min(text.size(), line.size() + 1));
      runLine(session, line);
    }
  } catch (const ScriptError&) {
    // Ends the run, as it does in the front end.
  }
  return 0;
}
