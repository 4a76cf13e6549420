#include "platform/qt/spoken_menu.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QMenuBar>
#include <QTimer>

namespace mevracard {

namespace {

class SpokenMenu final : public QAccessibleWidget {
 public:
  SpokenMenu(QWidget& menu, QAccessible::Role role) : QAccessibleWidget(&menu, role) {}

  QAccessibleInterface* parent() const override {
    const auto* menu = qobject_cast<QMenu*>(widget());
    // The toolkit's own, for entries that find no room, is its entry's parent.
    const bool hasEntry = menu != nullptr && menu->menuAction()->parent() != menu;
    return hasEntry ? QAccessible::queryAccessibleInterface(menu->menuAction())
                    : QAccessibleWidget::parent();
  }
  int childCount() const override { return static_cast<int>(widget()->actions().size()); }
  QAccessibleInterface* child(int index) const override {
    return QAccessible::queryAccessibleInterface(widget()->actions().value(index));
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return static_cast<int>(widget()->actions().indexOf(part->object()));
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focused = false;  // an entry is
    return state;
  }
};

class SpokenEntry final : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  explicit SpokenEntry(QAction& entry) : QAccessibleObject(&entry), entry_(entry) {}

  QAccessible::Role role() const override { return QAccessible::MenuItem; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&menu());
  }
  int childCount() const override { return entry_.menu() != nullptr ? 1 : 0; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(entry_.menu()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* part) const override {
    return part->object() == entry_.menu() ? 0 : -1;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !menu().isVisible();
    state.disabled = !entry_.isEnabled() || !menu().isEnabled();
    state.focusable = true;
    state.focused = entryAtHand() == &entry_;
    state.checkable = entry_.isCheckable();
    state.checked = entry_.isChecked();
    return state;
  }
  QRect rect() const override {
    const auto* bar = qobject_cast<QMenuBar*>(&menu());
    const QRect place = bar != nullptr ? bar->actionGeometry(&entry_)
                                       : static_cast<QMenu&>(menu()).actionGeometry(&entry_);
    return {menu().mapToGlobal(place.topLeft()), place.size()};
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? entry_.text().remove('&') : QString();
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name != pressAction() || !entry_.isEnabled() || !menu().isEnabled()) return;
    auto* bar = qobject_cast<QMenuBar*>(&menu());
    if (entry_.menu() == nullptr) return entry_.trigger();
    bar != nullptr ? bar->setActiveAction(&entry_)
                   : static_cast<QMenu&>(menu()).setActiveAction(&entry_);
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  [[nodiscard]] QWidget& menu() const { return static_cast<QWidget&>(*entry_.parent()); }

  QAction& entry_;
};

}  // namespace

QAction* entryAtHand() {
  if (const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
    return menu->activeAction() != nullptr ? menu->activeAction() : menu->menuAction();
  }
  const auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
  return bar != nullptr ? bar->activeAction() : nullptr;
}

void reportClosing(QMenu& menu) {
  QAction* entry = menu.menuAction();
  const auto report = [entry] {
    QAccessibleEvent event(entry, QAccessible::Focus);
    if (entryAtHand() == entry) QAccessible::updateAccessibility(&event);
  };
  QObject::connect(&menu, &QMenu::aboutToHide, entry,
                   [=] { QTimer::singleShot(0, entry, report); });
}

QAccessibleInterface* spokenMenu(QObject* object) {
  if (auto* bar = qobject_cast<QMenuBar*>(object)) {
    return new SpokenMenu(*bar, QAccessible::MenuBar);
  }
  if (auto* menu = qobject_cast<QMenu*>(object)) {
    return new SpokenMenu(*menu, QAccessible::PopupMenu);
  }
  auto* entry = qobject_cast<QAction*>(object);
  const bool isOurs = entry != nullptr && qobject_cast<QWidget*>(entry->parent()) != nullptr;
  return isOurs ? new SpokenEntry(*entry) : nullptr;
}

}  // namespace mevracard
