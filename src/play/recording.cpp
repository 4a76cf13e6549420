#include "play/recording.h"

#include "texts/messages.h"

namespace mevracard {

namespace {

/// Until the file is ours: another running game may have recorded its own result meanwhile, then
/// this one adds to that.
void writeRecord(MainWindow& w, RecordMode mode) {
  bool told = false;
  bool written = false;
  while (!written) {
    const std::string before = w.desktop.readFile(statisticsFile);
    const RecordUpdate update = updatedRecord(before, mode);
    if (update.startedAgain && !told) {
      w.say(countsFullMessage);
      told = true;
    }
    written = w.desktop.exchangeFile(statisticsFile, before, update.text);
  }
}

}  // namespace

void recordResult(MainWindow& w, RecordMode mode) {
  try {
    writeRecord(w, mode);
  } catch (const PlatformError&) {
    // A result that cannot be kept must not stop the end of a game; the figures stay as they were.
  }
}

}  // namespace mevracard
