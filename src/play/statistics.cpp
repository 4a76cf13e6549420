#include "play/statistics.h"

#include <functional>

#include "store/statistics.h"
#include "texts/messages.h"

namespace mevracard {

namespace {

void showStatistics(MainWindow& w) {
  StatisticsWindow& window = w.statistics;
  const Statistics statistics = statisticsOf(w.desktop.readFile(statisticsFile));
  window.won.caption = std::to_string(statistics.won);
  window.lost.caption = std::to_string(statistics.lost);
  window.wonPercent.caption = std::to_string(statistics.wonPercent) + "%";
  window.lostPercent.caption = std::to_string(statistics.lostPercent) + "%";
}

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

void countResult(MainWindow& w, GameResult result) {
  change(w, [result](std::string_view text) { return withResult(text, result); });
}

void openStatistics(MainWindow& w) {
  w.form.enabled = false;
  w.desktop.show(w.statistics.form);
  showStatistics(w);
}

void clearStatistics(MainWindow& w) {
  change(w, withoutResults);
  showStatistics(w);
}

void closeStatistics(MainWindow& w) {
  w.form.enabled = true;
  w.desktop.hide(w.statistics.form);
}

}  // namespace mevracard
