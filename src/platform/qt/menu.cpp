#include "platform/qt/menu.h"

#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QShortcut>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/qt/look.h"
#include "platform/qt/spoken_menu.h"

namespace mevracard {

namespace {

/// Has the keyboard at the menu bar until the player leaves it.
class KeyboardLoan final : public QObject {
 public:
  explicit KeyboardLoan(QMenuBar& bar) : QObject(&bar), owner_(QApplication::focusWidget()) {
    bar.installEventFilter(this);
    bar.setFocus(Qt::MenuBarFocusReason);
  }

 protected:
  /// A bar of which an entry is left is painted anew, and reports nothing else.
  bool eventFilter(QObject* bar, QEvent* event) override {
    if (event->type() == QEvent::Paint && !isMenuInUse()) {
      bar->removeEventFilter(this);
      QTimer::singleShot(0, this, [this] { giveBack(); });
    }
    return false;
  }

 private:
  void giveBack() {
    const bool stillHere = QApplication::focusWidget() == parent();
    if (stillHere && owner_ != nullptr) owner_->setFocus(Qt::MenuBarFocusReason);
    deleteLater();
  }

  QPointer<QWidget> owner_;
};

void openFirst(QMenuBar& bar) {
  const QList<QAction*> menus = bar.actions();
  const auto first = std::find_if(menus.begin(), menus.end(),
                                  [](const QAction* menu) { return menu->isEnabled(); });
  if (first == menus.end()) return;
  new KeyboardLoan(bar);
  bar.setActiveAction(*first);
}

}  // namespace

bool isMenuInUse() {
  const auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
  return QApplication::activePopupWidget() != nullptr ||
         (bar != nullptr && bar->activeAction() != nullptr);
}

void closeMenus() {
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
}

Menu::Menu(QMenuBar& bar, const std::vector<MenuEntry*>& entries,
           std::function<void(MenuEntry&)> chosen)
    : chosen_(std::move(chosen)) {
  add(bar, entries);
  auto* key = new QShortcut(Qt::Key_F10, &bar);
  QObject::connect(key, &QShortcut::activated, &bar, [&bar] { openFirst(bar); });
}

void Menu::add(QWidget& parent, const std::vector<MenuEntry*>& entries) {
  // Of entries with a check mark exactly one has it.
  const bool choice = std::any_of(entries.begin(), entries.end(),
                                  [](const MenuEntry* entry) { return entry->checked; });
  QActionGroup* group = choice ? new QActionGroup(&parent) : nullptr;
  for (MenuEntry* entry : entries) {
    auto* action = new QAction(toText(entry->caption), &parent);
    action->setObjectName(toText(entry->name));
    parent.addAction(action);
    if (choice) group->addAction(action)->setCheckable(true);
    items_.push_back({entry, action});
    if (entry->entries.empty()) {
      QObject::connect(action, &QAction::triggered, &parent, [this, entry] {
        chosen_(*entry);
        flush();
      });
    } else {
      auto* menu = new QMenu(&parent);
      action->setMenu(menu);
      if (qobject_cast<QMenu*>(&parent) != nullptr) reportClosing(*menu);
      add(*menu, entry->entries);
    }
  }
}

void Menu::flush() {
  for (const Item& item : items_) {
    item.action->setEnabled(item.entry->enabled);
    if (item.entry->checked) item.action->setChecked(true);
  }
}

}  // namespace mevracard
