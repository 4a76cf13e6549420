#include "screen.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>

#include <QtTest/QTest>

namespace mevracard {

namespace {

/// What the X test tool prints.
QByteArray answer(const QStringList& arguments) {
  QProcess process;
  process.start("xdotool", arguments);
  process.waitForFinished();
  return process.readAllStandardOutput();
}

}  // namespace

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

bool Screen::hasKeyboard(const Form& form) const {
  const auto& windows = desktop().windows();
  return std::any_of(windows.begin(), windows.end(), [&](const auto& window) {
    return &window->form() == &form && window->isActiveWindow() &&
           answer({"getwindowfocus"}).trimmed().toULongLong() == window->winId();
  });
}

bool Screen::isAtRest() {
  const auto& cards = window().cards;
  return std::all_of(cards.begin(), cards.end(), [this](const CardControls& card) {
    const auto seen = painted(card.frame);
    return !seen || (seen->center() - place(card.frame).center()).manhattanLength() <= 2;
  });
}

void Screen::start() {
  WindowGame::start();
  constexpr int frame = 16;  // pixels
  const auto stands = [this] {
    const int wanted = mainWidget().screen()->availableGeometry().width() - frame;
    return hasKeyboard(window().form) && mainWidget().width() >= wanted;
  };
  // Of a box that is closed at once the window manager may give the keyboard to nobody.
  if (!QTest::qWaitFor(stands, 10'000)) mainWidget().activateWindow();
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

bool Screen::keyUntil(const std::string& name, const std::function<bool()>& condition) {
  for (int presses = 0; presses < 6; ++presses) {
    key(name);
    if (QTest::qWaitFor(condition, 10'000)) return true;
    mainWidget().activateWindow();
  }
  return false;
}

bool Screen::waitFor(const std::function<bool()>& condition) {
  constexpr int patience = 60'000;  // ms, for a machine that has other things to do
  return QTest::qWaitFor(condition, patience);
}

QPoint Screen::pointer() {
  QPoint at;
  for (const QByteArray& line : answer({"getmouselocation", "--shell"}).split('\n')) {
    if (line.startsWith("X=")) at.setX(line.mid(2).toInt());
    if (line.startsWith("Y=")) at.setY(line.mid(2).toInt());
  }
  return at;
}

}  // namespace mevracard
