#include "script/commands.h"

#include <algorithm>

#include "script/values.h"

namespace mevracard::script {

namespace {

constexpr std::string_view blanks = " \t";

const Command& commandNamed(std::string_view name) {
  for (const auto table : {worldCommands(), playerCommands(), stateCommands()}) {
    for (const Command& command : table) {
      if (command.name == name) return command;
    }
  }
  throw ScriptError("no command " + excerpt(name));
}

}  // namespace

std::vector<std::string_view> wordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  std::size_t begin = text.find_first_not_of(blanks);
  while (begin != std::string_view::npos) {
    const std::size_t end = std::min(text.find_first_of(blanks, begin), text.size());
    words.push_back(text.substr(begin, end - begin));
    begin = text.find_first_not_of(blanks, end);
  }
  return words;
}

std::string_view afterFirstWord(std::string_view text) {
  const auto end = text.find_first_of(blanks, text.find_first_not_of(blanks));
  const auto next = text.find_first_not_of(blanks, end);
  return next == std::string_view::npos ? "" : text.substr(next);
}

void runLine(std::unique_ptr<Session>& session, std::string_view line) {
  if (line.starts_with('#') || line.find_first_not_of(blanks) == std::string_view::npos) return;
  const std::size_t nameEnd = std::min(line.find_first_of(blanks), line.size());
  const Command& command = commandNamed(line.substr(0, nameEnd));
  const std::string_view text = line.substr(std::min(nameEnd + 1, line.size()));
  const Call call{session, text, wordsOf(text)};
  if (call.words.size() < command.fewestWords || call.words.size() > command.mostWords) {
    throw ScriptError("wanted: " + std::string(command.usage));
  }
  if (command.needsProgram) (void)session->window();
  command.run(call);
  session->joinPlayCard();
  session->tellState(line);
}

}  // namespace mevracard::script
