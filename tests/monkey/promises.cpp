#include "monkey/promises.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QPixmap>
#include <QToolTip>
#include <QWidget>
#include <QWindow>
#include <vector>

#include "game/rules.h"
#include "painting/offscreen.h"
#include "simulate/player.h"
#include "testing/trail.h"

namespace mevracard::monkey {

namespace {

/// All that can be learnt of the windows without looking into the program.
struct Shown {
  QString texts;
  std::vector<QImage> pictures;
  bool operator==(const Shown&) const = default;
};

void listen(QAccessibleInterface& part, QString& texts) {
  for (int kind = QAccessible::Name; kind <= QAccessible::Accelerator; ++kind) {
    texts += part.text(static_cast<QAccessible::Text>(kind)) + '\n';
  }
  if (auto* text = part.textInterface()) texts += text->text(0, text->characterCount());
  for (int i = 0; i < part.childCount(); ++i) {
    if (QAccessibleInterface* child = part.child(i)) listen(*child, texts);
  }
}

Shown lookAround() {
  Shown shown{QGuiApplication::clipboard()->text() + QToolTip::text(), {}};
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (!top->isVisible()) continue;
    shown.texts += top->windowTitle();
    for (const QWidget* widget : top->findChildren<QWidget*>()) {
      shown.texts += widget->toolTip() + widget->statusTip() + widget->whatsThis();
    }
    if (QAccessibleInterface* voice = QAccessible::queryAccessibleInterface(top)) {
      listen(*voice, shown.texts);
    }
    shown.pictures.push_back(top->grab().toImage());
  }
  return shown;
}

/// A window beside the main one that takes the player's mouse and keys.
bool answers(const QWidget& top) {
  const QWidget* modal = QApplication::activeModalWidget();
  return top.windowType() == Qt::Dialog && top.isVisible() && top.isEnabled() &&
         (modal == nullptr || modal == &top);
}

}  // namespace

void Promises::checkTable() {
  if (const char* found = table_.complaint()) fail(std::string("broken: ") + found);
}

void Promises::checkWindows() const {
  const bool mainAnswers = w_.form.enabled && QApplication::activeModalWidget() == nullptr;
  if (mainAnswers || !w_.form.visible) return;
  if (QApplication::activePopupWidget() != nullptr) fail("broken: a menu stays open under it");
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    if (answers(*top)) return;
  }
  fail("broken: the main window is disabled and no other one answers");
}

void Promises::checkPictures() const {
  w_.present();  // the keyboard may still be on its way back to a button from what was said
  std::vector<QWidget*> windows;
  std::vector<QImage> shown;
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (!top->windowHandle() || !top->windowHandle()->isExposed()) continue;
    windows.push_back(top);
    shown.push_back(shownDots(*top));
  }
  for (std::size_t i = 0; i < windows.size(); ++i) {
    const QRect stale = differentBox(shown[i], afreshDots(*windows[i]));
    if (stale.isEmpty()) continue;
    fail("broken: \"" + windows[i]->windowTitle().toStdString() + "\" is stale at " +
         std::to_string(stale.x()) + "," + std::to_string(stale.y()));
  }
}

void Promises::checkCoveredCards() {
  Game& s = w_.game;
  const auto turnNumbers = [&](int by) {
    int covered = 0;
    for (std::size_t i = 0; i < cardCount; ++i) {
      if (!w_.cards[i].back.ground.visible) continue;
      ++covered;
      s.cards[i].upper = (s.cards[i].upper + by) % 7;
      s.cards[i].lower = (s.cards[i].lower + by) % 7;
    }
    w_.present();
    return covered;
  };
  if (turnNumbers(0) == 0) return;
  const Shown before = lookAround();
  turnNumbers(3);
  const Shown after = lookAround();
  turnNumbers(4);
  if (before.texts != after.texts) fail("broken: a covered card can be heard");
  if (before.pictures != after.pictures) fail("broken: a covered card can be seen");
}

const Box* Promises::fittingCard(simulate::RandomStream& random) const {
  const auto card = simulate::chooseCard(w_.game, simulate::Style::Random, random);
  return card ? &w_.card(*card).frame : nullptr;
}

}  // namespace mevracard::monkey
