#include "platform/qt/reduced_motion.h"

#include <QSettings>
#include <QStandardPaths>

namespace mevracard {

namespace {

/// A value of one of the desktop's own settings files.
QVariant desktopSetting(const QString& file, const QString& key) {
  const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
  return path.isEmpty() ? QVariant() : QSettings(path, QSettings::IniFormat).value(key);
}

bool askDesktop() {
  for (const char* file : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"}) {
    const QVariant animations = desktopSetting(file, "Settings/gtk-enable-animations");
    if (animations.isValid() && !animations.toBool()) return true;
  }
  const QVariant factor = desktopSetting("kdeglobals", "KDE/AnimationDurationFactor");
  return factor.isValid() && factor.toDouble() == 0;
}

}  // namespace

bool motionIsReduced() {
  static const bool reduced = askDesktop();
  return reduced;
}

}  // namespace mevracard
