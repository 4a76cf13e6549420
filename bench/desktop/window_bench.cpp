// The real window's work: a laid card within 2 ms, another size of the table within 8 ms at
// 3840x2160. Needs a display of that size.
#include <QApplication>
#include <QTemporaryDir>

#include <QtTest/QTest>
#include <benchmark/benchmark.h>

#include "app/program.h"
#include "game/rules.h"
#include "platform/qt/qt_desktop.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {
namespace {

/// The real desktop without the boxes that a player would have to close.
class QuietDesktop final : public QtDesktop {
 public:
  explicit QuietDesktop(const QString& dataDir)
      : QtDesktop(dataDir.toStdString(), {{std::string(settingsFile), defaultSettingsText()},
                                          {std::string(statisticsFile), emptyStatisticsText()}}) {}
  void messageBox(std::string_view /*text*/) override {}
};

struct Game {
  QTemporaryDir home;
  QuietDesktop desktop{home.filePath("data")};
  Program program{desktop};
};

QWidget* mainWidget() {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->objectName() == "mevraku") return top;
  }
  return nullptr;
}

/// Until the window system has shown the window and everything on it is painted.
void finishPainting(QWidget& window) {
  (void)QTest::qWaitForWindowExposed(&window);
  window.repaint();
}

void RescalingTheTable(benchmark::State& state) {
  Game game;
  game.program.start();
  MainWindow& w = game.program.window();
  finishPainting(*mainWidget());
  int value = 99;
  for ([[maybe_unused]] auto step : state) {
    value = value == 99 ? 70 : 99;
    game.program.handle({EventKind::Scroll, &w.form, &w.sizePanel.bar, nullptr, value});
    mainWidget()->repaint();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(RescalingTheTable)->Unit(benchmark::kMillisecond);

/// The first card that fits; a new game where none does.
int fittingCard(Game& game) {
  MainWindow& w = game.program.window();
  for (;;) {
    for (const int slot : handOf(Side::Player)) {
      if (w.game.card(slot).held && fits(w.game, slot)) return slot;
    }
    w.form.enabled = true;
    game.program.handle({EventKind::Menu, &w.form, nullptr, &w.menu.newGame, 0});
  }
}

void LayingACard(benchmark::State& state) {
  Game game;
  game.program.start();
  MainWindow& w = game.program.window();
  for ([[maybe_unused]] auto step : state) {
    state.PauseTiming();
    Frame& card = w.card(fittingCard(game)).frame;
    QCoreApplication::processEvents();
    state.ResumeTiming();
    game.program.handle({EventKind::DoubleClick, &w.form, &card, nullptr, 0});
    mainWidget()->repaint();
  }
}
BENCHMARK(LayingACard)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace mevracard

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
