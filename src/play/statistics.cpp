#include "play/statistics.h"

#include "play/recording.h"

namespace mevracard {

namespace {

void showFigures(MainWindow& w) {
  StatisticsWindow& window = w.statistics;
  const Figures figures = figuresOf(w.desktop.readFile(statisticsFile));
  window.won.caption = std::to_string(figures.won);
  window.lost.caption = std::to_string(figures.lost);
  window.wonPercent.caption = std::to_string(figures.wonPercent) + "%";
  window.lostPercent.caption = std::to_string(figures.lostPercent) + "%";
}

}  // namespace

void openStatistics(MainWindow& w) {
  w.form.enabled = false;
  w.desktop.show(w.statistics.form);
  showFigures(w);
}

void clearStatistics(MainWindow& w) {
  recordResult(w, RecordMode::Clear);
  showFigures(w);
}

void closeStatistics(MainWindow& w) {
  w.form.enabled = true;
  w.desktop.hide(w.statistics.form);
}

}  // namespace mevracard
