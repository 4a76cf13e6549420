#include "platform/qt/run.h"

#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "platform/qt/qt_desktop.h"

namespace mevracard {

namespace {

/// The toolkit gives up on a missing display by aborting; this says it in one line instead.
void reportMissingDisplay(QtMsgType type, const QMessageLogContext& /*place*/,
                          const QString& /*text*/) {
  if (type != QtFatalMsg) return;
  std::fputs("mevracard: there is no display to show the game on\n", stderr);
  std::_Exit(1);
}

std::filesystem::path directoryOf(const DesktopSetup& setup) {
  if (!setup.dataDirectory.empty()) return setup.dataDirectory;
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
  return QFile::encodeName(own).toStdString();
}

}  // namespace

int runOnDesktop(const DesktopSetup& setup,
                 const std::function<void(Desktop&, const std::function<void()>& loop)>& program) {
  int nameAlone = 1;  // the game takes no options, and so the toolkit gets none
  const QtMessageHandler before = qInstallMessageHandler(reportMissingDisplay);
  const QApplication application(nameAlone, setup.argv);
  qInstallMessageHandler(before);
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setApplicationName("mevracard");
  QGuiApplication::setDesktopFileName("mevracard");
  try {
    QtDesktop desktop(directoryOf(setup), setup.defaultFiles);
    int status = 0;
    program(desktop, [&] { status = desktop.run(); });
    return status;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "mevracard: %s\n", error.what());
    return 1;
  }
}

}  // namespace mevracard
