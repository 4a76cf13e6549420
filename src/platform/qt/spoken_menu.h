#pragma once

#include <QAccessible>
#include <QMenu>

/// The menus as assistive technology finds them. Of the toolkit's own, every part on the way to the
/// entry at hand says that the keyboard is there.
namespace mevracard {

/// The one entry that has the keyboard; null if no menu has it.
[[nodiscard]] QAction* entryAtHand();

/// The interface of a menu bar, a menu or an entry; null for anything else.
[[nodiscard]] QAccessibleInterface* spokenMenu(QObject* object);

/// From now on reports that the keyboard has come back from this menu to its entry in another.
void reportClosing(QMenu& menu);

}  // namespace mevracard
