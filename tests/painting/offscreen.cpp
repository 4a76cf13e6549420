#include "painting/offscreen.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <QWidget>
#include <cstring>
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

QRect differentBox(const QImage& one, const QImage& other) {
  if (one.size() != other.size()) return one.rect() | other.rect();
  const auto length = static_cast<std::size_t>(one.bytesPerLine());
  QRect box;
  for (int y = 0; y < one.height(); ++y) {
    if (std::memcmp(one.constScanLine(y), other.constScanLine(y), length) == 0) continue;
    for (int x = 0; x < one.width(); ++x) {
      if (one.pixel(x, y) != other.pixel(x, y)) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

}  // namespace mevracard
