#include "store/recording.h"

namespace mevracard {

void recordResult(MainWindow& w, RecordMode mode) {
  try {
    bool told = false;
    for (;;) {
      const std::string before = w.desktop.readFile(statisticsFile);
      const RecordUpdate update = updatedRecord(before, mode);
      if (update.startedAgain && !told) {
        w.say("No. of Game has reached 999. Reset to 0 again.");
        told = true;
      }
      // Another running game may have recorded its own result meanwhile: then add to that one.
      if (w.desktop.exchangeFile(statisticsFile, before, update.text)) return;
    }
  } catch (const PlatformError&) {
    // A result that cannot be kept must not stop the end of a game; the figures stay as they were.
  }
}

}  // namespace mevracard
