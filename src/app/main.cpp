#include <QApplication>
#include <QStandardPaths>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "app/program.h"
#include "platform/qt/qt_desktop.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace {

/// The toolkit gives up on a missing display by aborting; this says it in one line instead.
void reportMissingDisplay(QtMsgType type, const QMessageLogContext& /*place*/,
                          const QString& /*text*/) {
  if (type != QtFatalMsg) return;
  std::fputs("mevracard: there is no display to show the game on\n", stderr);
  std::_Exit(1);
}

QString dataDirectory() {
  QString fixed = MEVRACARD_DATA_DIR;
  if (!fixed.isEmpty()) return fixed;
  return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

int play() {
  using namespace mevracard;
  QtDesktop desktop(dataDirectory(),
                    {{std::string(settingsFile), std::string(defaultSettingsLine) + "\r\n"},
                     {std::string(statisticsFile), emptyRecordText()}});
  Program program(desktop);
  program.start();
  return desktop.run();
}

}  // namespace

int main(int /*argc*/, char** argv) {
  int nameAlone = 1;  // the game takes no options, and so the toolkit gets none
  const QtMessageHandler before = qInstallMessageHandler(reportMissingDisplay);
  const QApplication application(nameAlone, argv);
  qInstallMessageHandler(before);
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setApplicationName("mevracard");
  QGuiApplication::setDesktopFileName("mevracard");
  try {
    return play();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "mevracard: %s\n", error.what());
    return 1;
  }
}
