#include "platform/qt/reduced_motion.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>

#ifdef QT_DBUS_LIB
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#endif

namespace mevracard {

namespace {

bool reduced = false;

/// A value of one of the desktop's own settings files.
QVariant desktopSetting(const QString& file, const QString& key) {
  const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
  return path.isEmpty() ? QVariant() : QSettings(path, QSettings::IniFormat).value(key);
}

bool filesSayReduced() {
  for (const char* file : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"}) {
    const QVariant animations = desktopSetting(file, "Settings/gtk-enable-animations");
    if (animations.isValid() && !animations.toBool()) return true;
  }
  const QVariant factor = desktopSetting("kdeglobals", "KDE/AnimationDurationFactor");
  return factor.isValid() && factor.toDouble() == 0;
}

#ifdef QT_DBUS_LIB

/// The setting service of the desktops wraps its values, some versions twice.
QVariant unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

void askSettingService() {
  auto question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                 "/org/freedesktop/portal/desktop",
                                                 "org.freedesktop.portal.Settings", "Read");
  question << "org.gnome.desktop.interface"
           << "enable-animations";
  auto* answer =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), qApp);
  QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer] {
    const QDBusPendingReply<QVariant> reply(*answer);
    if (reply.isValid() && !unwrapped(reply.value()).toBool()) reduced = true;
    answer->deleteLater();
  });
}

#else

void askSettingService() {}

#endif

}  // namespace

void askAboutMotion() {
  const bool animated = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
  reduced = !animated || filesSayReduced();
  if (!reduced) askSettingService();
}

bool motionIsReduced() { return reduced; }

}  // namespace mevracard
