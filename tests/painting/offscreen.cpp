#include "painting/offscreen.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <QWidget>
#include <fstream>

namespace mevracard {

void useOffscreen(QSize screen) {
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
  static const QTemporaryDir home;
  const QString path = home.filePath("screen.json");
  std::ofstream(path.toStdString())
      << R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": )" << screen.width()
      << R"(, "height": )" << screen.height()
      << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toLocal8Bit());
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // what it cannot do
}

QImage shownDots(QWidget& window) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
  QEvent due(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&window, &due);
  return static_cast<QImage*>(window.backingStore()->paintDevice())->copy();
}

QImage afreshDots(QWidget& window) {
  window.update();
  for (QWidget* widget : window.findChildren<QWidget*>()) widget->update();
  return shownDots(window);
}

std::optional<QPoint> differentDot(const QImage& one, const QImage& other) {
  if (one == other) return std::nullopt;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (!other.valid(x, y) || one.pixel(x, y) != other.pixel(x, y)) return QPoint(x, y);
    }
  }
  return QPoint(one.width(), one.height());
}

}  // namespace mevracard
