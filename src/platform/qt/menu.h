#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <vector>

#include "platform/form.h"

namespace mevracard {

/// Whether a menu, or the menu bar, has the keyboard.
[[nodiscard]] bool isMenuInUse();

/// Closes the menu that the player has open, if any: it keeps the keyboard from what opens now.
void closeMenus();

/// The menu bar of a window. Entries are made once; their state follows the data.
class Menu final {
 public:
  /// `chosen` is called with the command that the player picks.
  Menu(QMenuBar& bar, const std::vector<MenuEntry*>& entries,
       std::function<void(MenuEntry&)> chosen);

  void flush();

 private:
  struct Item {
    MenuEntry* entry;
    QAction* action;
  };

  /// `parent` is the menu bar or a menu.
  void add(QWidget& parent, const std::vector<MenuEntry*>& entries);

  std::function<void(MenuEntry&)> chosen_;
  std::vector<Item> items_;
};

}  // namespace mevracard
