#include "play/recording.h"

#include <functional>

#include "texts/messages.h"

namespace mevracard {

namespace {

/// Another running game may change the file meanwhile; then the change is made to what it wrote.
/// QUIRK-44: tells that the counts begin again also when they are emptied. One would expect no
/// word; the player who clears 999 games reads that they are reset.
void change(MainWindow& w, const std::function<std::string(std::string_view)>& changed) {
  bool told = false;
  bool written = false;
  try {
    while (!written) {
      const std::string before = w.desktop.readFile(statisticsFile);
      if (countsAreFull(before) && !told) {
        w.say(countsFullMessage);
        told = true;
      }
      written = w.desktop.exchangeFile(statisticsFile, before, changed(before));
    }
  } catch (const PlatformError&) {
    // What cannot be kept must not stop the end of a game; the statistics stay as they were.
  }
}

}  // namespace

void recordResult(MainWindow& w, GameResult result) {
  change(w, [result](std::string_view text) { return withResult(text, result); });
}

void forgetResults(MainWindow& w) { change(w, withoutResults); }

}  // namespace mevracard
