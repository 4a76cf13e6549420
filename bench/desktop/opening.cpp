// One opening, for compare_openings.py: `opening WHAT SPAWNED` opens the "game", the game for the
// "first" time, or an "empty" maximized window with the same message box, and prints the
// microseconds from SPAWNED (on the monotonic clock) to the last thing painted, then the
// proportional memory in KiB.
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QMainWindow>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "app/program.h"
#include "platform/qt/run.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {
namespace {

long long microseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::microseconds>(now).count();
}

/// Waits until nothing is painted any more, and says when that was.
class Watch final : public QObject {
 public:
  explicit Watch(long long spawned) : spawned_(spawned) {
    qApp->installEventFilter(this);
    quiet_.setSingleShot(true);
    quiet_.setInterval(700);
    connect(&quiet_, &QTimer::timeout, this, &Watch::report);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::UpdateRequest) {
      const bool handled = watched->event(event);
      painted_ = microseconds();
      quiet_.start();
      return handled;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void report() const {
    QFile memory("/proc/self/smaps_rollup");
    (void)memory.open(QIODevice::ReadOnly);
    long long pss = 0;
    for (const QByteArray& line : memory.readAll().split('\n')) {
      if (line.startsWith("Pss:")) pss = line.mid(4).chopped(2).trimmed().toLongLong();
    }
    std::printf("%lld %lld\n", painted_ - spawned_, pss);
    std::fflush(stdout);
    std::_Exit(0);
  }

  long long spawned_, painted_ = 0;
  QTimer quiet_;
};

/// The player's files as at any start but the first.
void fill(const QTemporaryDir& home) {
  std::ofstream(home.filePath("wdx.sys").toStdString()) << "1/1/99\r\n";
  std::ofstream(home.filePath("sys32rtn.dat").toStdString()) << emptyStatisticsText();
}

int openTheGame(char** argv, const QString& home, long long spawned) {
  const DesktopSetup setup{argv,
                           home.toStdString(),
                           {{std::string(settingsFile), defaultSettingsText()},
                            {std::string(statisticsFile), emptyStatisticsText()}}};
  return runOnDesktop(setup, [&](Desktop& desktop, const std::function<void()>& loop) {
    const Watch watch(spawned);
    Program program(desktop);
    program.start();
    loop();
  });
}

int openAnEmptyWindow(int argc, char** argv, long long spawned) {
  const QApplication application(argc, argv);
  const Watch watch(spawned);
  QApplication::setStyle("Fusion");
  QMainWindow window;
  window.showMaximized();
  QMessageBox(QMessageBox::NoIcon, "Zub MevraCard", "Starting with discarding 0-0 card.",
              QMessageBox::Ok, &window)
      .exec();
  return 0;
}

}  // namespace
}  // namespace mevracard

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const long long spawned = std::atoll(argv[2]);
  const QTemporaryDir home;  // for the empty window too, so that both have waited for it
  mevracard::fill(home);
  const std::string_view what = argv[1];
  if (what == "empty") return mevracard::openAnEmptyWindow(1, argv, spawned);
  const QString folder = what == "first" ? home.filePath("new") : home.path();
  return mevracard::openTheGame(argv, folder, spawned);
}
