// What the real windows paint, without a display; the ratio of dots to pixels comes from outside.
#include <QAnimationDriver>
#include <QScreen>

#include <gtest/gtest.h>

#include "game/rules.h"
#include "painting/offscreen.h"
#include "painting/table.h"

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
  table.windowOf(w.form).resize(800, 600);
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

}  // namespace
}  // namespace mevracard
