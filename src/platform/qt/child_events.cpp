#include "platform/qt/child_events.h"

#ifdef QT_DBUS_LIB
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#endif

namespace mevracard {

#ifdef QT_DBUS_LIB

/// A part of a program, as the bus names it.
struct PartOnBus {
  QString program;
  QDBusObjectPath path;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PartOnBus& part) {
  argument.beginStructure();
  argument << part.program << part.path;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PartOnBus& part) {
  argument.beginStructure();
  argument >> part.program >> part.path;
  argument.endStructure();
  return argument;
}

namespace {

const QString root = "/org/a11y/atspi/accessible/";

QString pathOf(const QAccessibleInterface& part) {
  return root + QString::number(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(&part)));
}

}  // namespace

// The toolkit's own events have no index for a child that goes, and a wrong one for one that comes
// in the middle. So this one is made here, and sent over the toolkit's line to the bus.
void reportChild(ChildEvent event, const QAccessibleInterface& parent,
                 const QAccessibleInterface& child, int index) {
  const QDBusConnection bus("a11y");
  if (!QAccessible::isActive() || !bus.isConnected()) return;
  qDBusRegisterMetaType<PartOnBus>();
  const auto reference = [&](const QString& path) {
    return QVariant::fromValue(PartOnBus{bus.baseService(), QDBusObjectPath(path)});
  };
  QDBusMessage signal =
      QDBusMessage::createSignal(pathOf(parent), "org.a11y.atspi.Event.Object", "ChildrenChanged");
  signal << (event == ChildEvent::Added ? "add" : "remove") << index << 0
         << QVariant::fromValue(QDBusVariant(reference(pathOf(child)))) << reference(root + "root");
  bus.send(signal);
}

#else

void reportChild(ChildEvent event, const QAccessibleInterface& /*parent*/,
                 const QAccessibleInterface& child, int /*index*/) {
  const auto kind =
      event == ChildEvent::Added ? QAccessible::ObjectCreated : QAccessible::ObjectDestroyed;
  QAccessibleEvent known(const_cast<QAccessibleInterface*>(&child), kind);
  QAccessible::updateAccessibility(&known);
}

#endif

}  // namespace mevracard
