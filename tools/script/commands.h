#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "script/session.h"

namespace mevracard::script {

/// What a command reads from its line, and the session that it may replace.
struct Call {
  std::unique_ptr<Session>& slot;
  std::string_view text;                ///< the rest of the line as it stands
  std::vector<std::string_view> words;  ///< the same in words

  [[nodiscard]] Session& session() const { return *slot; }
};

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

/// One row of a command table.
struct Command {
  std::string_view name;
  std::string_view usage;  ///< the name and what follows it
  std::size_t fewestWords, mostWords;
  bool needsProgram;
  void (*run)(const Call& call);
};

[[nodiscard]] std::span<const Command> worldCommands();
[[nodiscard]] std::span<const Command> playerCommands();
[[nodiscard]] std::span<const Command> stateCommands();

/// Carries out one line. Throws ScriptError.
void runLine(std::unique_ptr<Session>& session, std::string_view line);

/// The words of a text, between blanks.
[[nodiscard]] std::vector<std::string_view> wordsOf(std::string_view text);
/// What follows the first word and the blanks after it.
[[nodiscard]] std::string_view afterFirstWord(std::string_view text);

}  // namespace mevracard::script
