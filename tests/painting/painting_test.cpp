// What the real windows paint, without a display; the ratio of dots to pixels comes from outside.
#include <QCoreApplication>
#include <QKeyEvent>
#include <set>

#include <gtest/gtest.h>

#include "game/rules.h"
#include "painting/expectations.h"
#include "painting/offscreen.h"
#include "painting/table.h"
#include "platform/qt/menu.h"
#include "play/choice.h"

namespace mevracard {
namespace {

std::vector<Label*> paintedLabels(const Form& form) {
  std::vector<Label*> labels;
  for (Control* control : form.controls) {
    if (control->kind == ControlKind::Label && !isWidget(*control)) {
      labels.push_back(static_cast<Label*>(control));
    }
  }
  return labels;
}

// Of a text too long for its label nothing may be cut, nor stay when another takes its place.
TEST(Painting, LeavesNothingOfALongText) {
  Table table;
  MainWindow& w = table.w;
  table.choose(w.menu.about);
  table.choose(w.menu.statistics);
  table.windowOf(w.form).showNormal();
  table.windowOf(w.form).resize(640, 480);
  w.status.visible = false;  // it stands in front of another one
  for (Form* form : {&w.form, &w.about.form, &w.statistics.form}) {
    for (Label* label : paintedLabels(*form)) {
      const Label before = *label;
      for (const char* caption : {"WWWWj", "WWW WWWWWWWWWWWWWWWW\nW\nWj"}) {
        SCOPED_TRACE(label->fullName() + " " + caption);
        label->visible = true;
        label->caption = caption;
        const QImage shown = table.shown(*form);
        const QImage afresh = table.afresh(*form);
        EXPECT_FALSE(differentDot(shown, afresh));
        label->caption = before.caption;
        const QImage back = table.shown(*form);
        EXPECT_TRUE(differentDot(shown, back) || caption[4] != 'j');
        EXPECT_FALSE(differentDot(back, table.afresh(*form)));
      }
      label->visible = before.visible;
    }
  }
}

/// Every control of all windows that can ever be seen.
std::set<std::string> allThatShows(const MainWindow& w) {
  std::set<std::string> names;
  const auto add = [&names](const Control& control) {
    const bool keysOnly = control.kind == ControlKind::Button && !isWidget(control);
    if (!keysOnly) names.insert(nameOf(control));
  };
  for (const Form* form : {&w.form, &w.about.form, &w.statistics.form}) {
    for (const Control* control : form->controls) {
      add(*control);
      if (control->kind != ControlKind::Frame) continue;
      for (const Control* child : static_cast<const Frame*>(control)->children) add(*child);
    }
  }
  return names;
}

/// A card with two numbers makes them both the open ones.
void openSomeChoice(MainWindow& w) {
  for (const int slot : handOf(Side::Player)) {
    const Card& card = w.game.card(slot);
    if (!card.held || card.isDouble()) continue;
    w.game.chain.openNumber = {{card.upper, card.lower}};
    return openChoice(w, slot);
  }
}

// Each label's text, each card's numbers, frame, divider and back, each line and shape must have
// its colour where its data say.
TEST(Painting, ShowsEverythingWhereItStands) {
  Table table("2/1/99");
  MainWindow& w = table.w;
  Seen seen;
  const auto look = [&](const Form& form, const char* what) {
    SCOPED_TRACE(what);
    const QImage shown = table.shown(form);
    expectPainted(form, shown, table.windowOf(form).devicePixelRatioF(), seen);
    EXPECT_FALSE(differentDot(shown, table.afresh(form)));
  };
  look(w.form, "face down");
  table.choose(w.menu.playerLevel1);
  table.answer();
  look(w.form, "face up");
  w.card(3).upper.backColor = {255, 0, 0};
  openSomeChoice(w);
  look(w.form, "choice");
  table.press(w.form, w.choice.cancel);
  table.choose(w.menu.tableSize);
  look(w.form, "panel");
  table.press(w.form, w.sizePanel.ok);
  table.choose(w.menu.howToPlay);
  look(w.form, "demonstration");
  table.press(w.form, w.tutorial.stop);
  w.status.visible = false;
  for (Label* label : w.result.labels()) label->visible = true;
  look(w.form, "end");
  table.choose(w.menu.statistics);
  look(w.statistics.form, "statistics");
  table.press(w.statistics.form, w.statistics.ok);
  table.choose(w.menu.about);
  look(w.about.form, "about");

  std::set<std::string> unseen = allThatShows(w);
  for (const std::string& name : seen.controls) unseen.erase(name);
  // One that never shows, and two of the tips' window.
  EXPECT_EQ(unseen, (std::set<std::string>{"additional", "ctrcom", "kotak(0)"}));
  std::set<std::string> numbers;
  for (const auto& [caption, number] : seen.numbers) {
    for (const auto& [other, theirs] : seen.numbers) EXPECT_EQ(number == theirs, caption == other);
    numbers.insert(caption);
  }
  EXPECT_EQ(numbers, (std::set<std::string>{"0", "1", "2", "3", "4", "5", "6"}));
}

void type(QWidget& window, Qt::KeyboardModifiers with) {
  QKeyEvent key(QEvent::KeyPress, Qt::Key_P, with, "p");
  QCoreApplication::sendEvent(&window, &key);
}

// A shortcut of the system's is no key of the game, and after the end no key is.
TEST(Window, TakesPlainKeysWhileTheGameLasts) {
  Table table;
  MainWindow& w = table.w;
  for (const auto with : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    type(table.windowOf(w.form), with);
    EXPECT_EQ(w.state.selectedCard, noSelection);
  }
  type(table.windowOf(w.form), Qt::ShiftModifier);
  const int selected = w.state.selectedCard;
  EXPECT_NE(selected, noSelection);
  table.choose(w.menu.exit);
  type(table.windowOf(w.form), Qt::NoModifier);
  EXPECT_EQ(w.state.selectedCard, selected);
}

// The check mark follows the data, also where the game does not take a choice.
TEST(Menu, MarksWhatTheDataSay) {
  MenuEntry one{"one", "One"};
  MenuEntry two{"two", "Two"};
  one.checked = true;
  QMenuBar bar;
  Menu menu(bar, {&one, &two}, [](MenuEntry& /*chosen*/) {});
  menu.flush();
  bar.actions()[1]->trigger();
  EXPECT_TRUE(bar.actions()[0]->isChecked());
  EXPECT_FALSE(bar.actions()[1]->isChecked());
}

}  // namespace
}  // namespace mevracard
