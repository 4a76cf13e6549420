#include <iostream>
#include <memory>
#include <string>

#include "script/commands.h"
#include "script/values.h"

/// Plays the game from commands on standard input, one a line, without a window. A line that cannot
/// be carried out ends the run with exit status 2.
int main() {
  using namespace mevracard::script;
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  auto session = std::make_unique<Session>();
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    if (line.ends_with('\r')) line.pop_back();
    try {
      runLine(session, line);
    } catch (const ScriptError& error) {
      std::cout.flush();
      std::cerr << "line " << number << ": " << error.what() << '\n';
      return 2;
    }
    std::cout.flush();
  }
  return 0;
}
