#include "platform/qt/focus_reports.h"

#include <QMenuBar>
#include <QTextEdit>

#include "platform/qt/canvas.h"
#include "platform/qt/spoken_menu.h"
#include "platform/qt/spoken_tree.h"

namespace mevracard {

namespace {

void passOn(QAccessibleEvent* event);

void report(QAccessibleEvent& event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(&event);
  QAccessible::installUpdateHandler(passOn);
}

/// The toolkit reports the keyboard before it is known what is to be said where it is, and at the
/// menu bar where the pointer passes. A text is told by a list.
void passOn(QAccessibleEvent* event) {
  const QObject* part = event->object();
  const bool early = dynamic_cast<const NewsPlace*>(part) != nullptr ||
                     dynamic_cast<const Canvas*>(part) != nullptr;
  const bool passing = qobject_cast<const QMenuBar*>(part) != nullptr && entryAtHand() == nullptr;
  const bool isFocus = event->type() == QAccessible::Focus;
  const bool told = qobject_cast<const QTextEdit*>(part) != nullptr;
  if (!told && (!isFocus || (!early && !passing))) report(*event);
}

}  // namespace

void holdBackFocusReports() { QAccessible::installUpdateHandler(passOn); }

void reportFocus(QWidget& part) {
  QAccessibleEvent event(&part, QAccessible::Focus);
  report(event);
}

}  // namespace mevracard
