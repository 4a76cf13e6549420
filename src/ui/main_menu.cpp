#include "ui/main_window.h"

namespace mevracard {

namespace {

void link(MenuEntry& menu, std::initializer_list<MenuEntry*> entries) {
  menu.entries = entries;
  for (MenuEntry* entry : entries) entry->parent = &menu;
}

}  // namespace

void MainWindow::designMenu() {
  MenuEntries& m = menu;
  // clang-format off
  m.file             = {"file",   "&File"};
  m.playerLevel      = {"plevel", "&Player Level"};
  m.playerLevel1     = {"pl1",    "Level 1"};
  m.playerLevel2     = {"pl2",    "Level 2"};
  m.computerLevel    = {"clevel", "&Computer Level"};
  m.computerLevel1   = {"cl1",    "Level &1"};
  m.computerLevel2   = {"cl2",    "Level &2"};
  m.newGame          = {"rg",     "&New Game"};
  m.statistics       = {"stat",   "&Statistics"};
  m.exit             = {"exit",   "&Exit"};
  m.help             = {"help",   "&Help"};
  m.about            = {"author", "&About"};
  m.tips             = {"tips",   "&Tips of Game"};
  m.homepage         = {"go",     "&Go to Homepage"};
  m.helpTableSize    = {"rufoxx", "Screen&Option"};
  m.tableSize        = {"scr",    "Screen&Option"};
  m.howToPlay        = {"how",    "HowTo&Play"};
  // clang-format on
  m.playerLevel1.checked = true;
  m.computerLevel1.checked = true;

  link(m.playerLevel, {&m.playerLevel1, &m.playerLevel2});
  link(m.computerLevel, {&m.computerLevel1, &m.computerLevel2});
  link(m.file, {&m.playerLevel, &m.computerLevel, &m.newGame, &m.statistics, &m.exit});
  link(m.help, {&m.about, &m.tips, &m.homepage, &m.helpTableSize});
  form.menu = {&m.file, &m.help, &m.tableSize, &m.howToPlay};
}

}  // namespace mevracard
