#include "screen.h"

#include <QApplication>

#include <QtTest/QTest>

namespace mevracard {

Screen::Screen(int seed, const std::string& settings) : WindowGame(seed, settings) {}

QWidget& Screen::mainWidget() const {
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->objectName() == "mevraku") return *top;
  }
  throw std::runtime_error("there is no main window");
}

QWidget& Screen::widget(const Control& control) const {
  const QString name = QString::fromStdString(control.fullName());
  for (QWidget* candidate : QApplication::allWidgets()) {
    if (candidate->objectName() == name && candidate->isVisible()) return *candidate;
  }
  throw std::runtime_error("not on the screen: " + control.fullName());
}

std::optional<QRect> Screen::painted(const Control& control) const {
  for (const auto& window : desktop().windows()) {
    if (!window->isVisible()) continue;
    const double ratio = window->devicePixelRatioF();
    for (const Item& item : window->canvas().picture()) {
      if (item.control != &control) continue;
      const QPoint corner = (QPointF(item.place.left, item.place.top) / ratio).toPoint();
      return QRect(window->canvas().mapToGlobal(corner),
                   QSize(item.place.width, item.place.height) / ratio);
    }
  }
  return std::nullopt;
}

QRect Screen::place(const Box& control) const {
  for (const auto& window : desktop().windows()) {
    if (window->form().holds(control)) return window->placeOnScreen(control);
  }
  throw std::runtime_error("not on the screen: " + control.fullName());
}

void Screen::tool(const QStringList& arguments) { QProcess::execute("xdotool", arguments); }

void Screen::click(const Box& control) {
  const QPoint at = place(control).center();
  tool({"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "1"});
}

void Screen::doubleClick(const Box& control) {
  const QPoint at = place(control).center();
  tool({"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "--repeat", "2",
        "--delay", "20", "1"});
}

void Screen::key(const std::string& name) { tool({"key", QString::fromStdString(name)}); }

bool Screen::waitFor(const std::function<bool()>& condition, int patience) {
  return QTest::qWaitFor(condition, patience);
}

QPoint Screen::pointer() {
  QProcess process;
  process.start("xdotool", {"getmouselocation", "--shell"});
  process.waitForFinished();
  QPoint at;
  for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
    if (line.startsWith("X=")) at.setX(line.mid(2).toInt());
    if (line.startsWith("Y=")) at.setY(line.mid(2).toInt());
  }
  return at;
}

}  // namespace mevracard
