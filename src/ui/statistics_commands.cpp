#include "ui/statistics_commands.h"

#include "store/recording.h"

namespace mevracard {

namespace {

void showFigures(MainWindow& w) {
  StatisticsWindow& window = w.kalahmenang;
  const Figures figures = figuresOf(w.desktop.readFile(statisticsFile));
  window.wins.caption = std::to_string(figures.won);
  window.loses.caption = std::to_string(figures.lost);
  window.pwins.caption = std::to_string(figures.wonPercent) + "%";
  window.ploses.caption = std::to_string(figures.lostPercent) + "%";
}

}  // namespace

void stat_Click(MainWindow& w) {
  w.form.enabled = false;
  w.desktop.show(w.kalahmenang.form);
  showFigures(w);
}

void hapusrec_Click(MainWindow& w) {
  recordResult(w, RecordMode::Clear);
  showFigures(w);
}

void tutuprec_Click(MainWindow& w) {
  w.form.enabled = true;
  w.desktop.hide(w.kalahmenang.form);
}

void closeStatistics(MainWindow& w) { tutuprec_Click(w); }

}  // namespace mevracard
