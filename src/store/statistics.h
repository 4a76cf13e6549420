#pragma once

#include <string>
#include <string_view>

/// The record of games won and lost, as the text of its file. Any text is accepted: what is missing
/// or no code counts as nothing.
namespace mevracard {

inline constexpr std::string_view statisticsFile = "sys32rtn.dat";

/// What happens to the record.
enum class RecordMode { Clear, Won, Lost };

struct RecordUpdate {
  std::string text;           ///< the file's new text
  bool startedAgain = false;  ///< 999 games were recorded, the counts began at 0 again
};

/// The file of a record of no games.
[[nodiscard]] std::string emptyRecordText();

/// The file after one more result, or after clearing. Characters behind the record are kept.
[[nodiscard]] RecordUpdate updatedRecord(std::string_view fileText, RecordMode mode);

/// Games and percentages, the latter truncated to whole numbers; 0 without games.
struct Figures {
  int won = 0, lost = 0;
  int wonPercent = 0, lostPercent = 0;
};
[[nodiscard]] Figures figuresOf(std::string_view fileText);

}  // namespace mevracard
