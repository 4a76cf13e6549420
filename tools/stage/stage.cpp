#include "stage/stage.h"

#include <QApplication>
#include <QWindow>
#include <stdexcept>
#include <utility>

#include <QtTest/QTest>

namespace mevracard {

namespace {

/// The window that lies there, the one in front first.
QWindow& windowAt(QPoint place) {
  if (QWidget* active = QApplication::activeWindow();
      active != nullptr && active->frameGeometry().contains(place)) {
    return *active->windowHandle();
  }
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && top->frameGeometry().contains(place)) return *top->windowHandle();
  }
  throw std::runtime_error("no window lies there");
}

}  // namespace

Stage::Stage(const std::string& settings) : WindowGame(1, settings), names_(window()) {}

void Stage::beforeBoxCloses() {
  if (!boxName_.isEmpty()) shoot(std::exchange(boxName_, {}));
}

void Stage::menu(std::string_view name) {
  MenuEntry& entry = names_.entry(name);
  if (!entry.enabled) throw std::runtime_error("the menu entry is grey");
  handle({EventKind::Menu, &window().form, nullptr, &entry});
}

QPoint Stage::centreOf(std::string_view name) const {
  const auto& control = static_cast<const Box&>(names_.control(name));
  const auto centre = desktop().centreOnScreen(control);
  if (!centre) throw std::runtime_error("not on the screen: " + std::string(name));
  return QPointF(centre->x, centre->y).toPoint();
}

void Stage::press(std::string_view name, int times) {
  const QPoint place = centreOf(name);
  QWindow& window = windowAt(place);
  const QPoint inside = window.mapFromGlobal(place);
  if (times == 1) {
    QTest::mouseClick(&window, Qt::LeftButton, {}, inside);
  } else {
    QTest::mouseDClick(&window, Qt::LeftButton, {}, inside);
  }
}

void Stage::key(std::string_view name) {
  const Qt::Key key = name == "Enter"   ? Qt::Key_Return
                      : name == "Space" ? Qt::Key_Space
                      : name == "Esc"   ? Qt::Key_Escape
                                      : static_cast<Qt::Key>(QChar(name.at(0)).toUpper().unicode());
  QWidget* active = QApplication::activeWindow();
  if (active == nullptr) throw std::runtime_error("no window has the keyboard");
  QTest::keyClick(active->windowHandle(), key);
}

void Stage::shootBetween(const QString& name, std::string_view from, std::string_view to,
                         int margin) {
  wait(400);
  const QPoint a = centreOf(from);
  const QPoint b = centreOf(to);
  const QRect wanted = QRect(a, b).normalized().adjusted(-margin, -margin, margin, margin);
  save(picture().copy(wanted), name);
}

std::string Stage::caption(std::string_view name) const {
  const Control& control = names_.control(name);
  if (control.kind != ControlKind::Label) throw std::runtime_error("no label");
  return static_cast<const Label&>(control).caption;
}

}  // namespace mevracard
