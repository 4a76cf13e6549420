#include "play/statistics.h"

#include "play/recording.h"

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

}  // namespace

void openStatistics(MainWindow& w) {
  w.form.enabled = false;
  w.desktop.show(w.statistics.form);
  showStatistics(w);
}

void clearStatistics(MainWindow& w) {
  forgetResults(w);
  showStatistics(w);
}

void closeStatistics(MainWindow& w) {
  w.form.enabled = true;
  w.desktop.hide(w.statistics.form);
}

}  // namespace mevracard
