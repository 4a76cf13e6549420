#include "stage/stage.h"

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QScreen>
#include <stdexcept>

#include <QtTest/QTest>

#include "store/statistics.h"

namespace mevracard {

namespace {

QString folderWith(const QTemporaryDir& home, const std::string& settings) {
  const auto put = [&home](const char* name, const std::string& text) {
    QFile file(home.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::fromStdString(text)) < 0) {
      throw std::runtime_error("the data files cannot be written");
    }
  };
  put("wdx.sys", settings + "\r\n");
  put("sys32rtn.dat", emptyRecordText());
  return home.path();
}

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

/// What the screen shows; where the platform keeps that to itself, what the windows show.
QPixmap picture() {
  if (QGuiApplication::platformName() == "xcb")
    return QGuiApplication::primaryScreen()->grabWindow(0);
  QWidget* largest = nullptr;
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && (largest == nullptr || top->width() > largest->width())) largest = top;
  }
  return largest == nullptr ? QPixmap() : largest->grab();
}

void save(const QPixmap& pixmap, const QString& name) {
  if (!pixmap.save(name + ".png")) throw std::runtime_error("a picture cannot be written");
}

}  // namespace

Stage::Stage(const std::string& settings)
    : desktop_(folderWith(home_, settings)), program_(desktop_), names_(program_.window()) {
  QObject::connect(&closer_, &QTimer::timeout, [this] { closeMessageBox(); });
  closer_.start(50);
}

void Stage::closeMessageBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr || !box->isVisible()) return;
  if (!boxName_.isEmpty()) {
    const QString name = std::exchange(boxName_, {});
    closer_.stop();  // it runs out within the wait as well
    shoot(name);
    closer_.start();
  }
  QTest::keyClick(box, Qt::Key_Return);
}

void Stage::start() {
  program_.start();
  wait(500);
}

void Stage::menu(std::string_view name) {
  MenuEntry& entry = names_.entry(name);
  if (!entry.enabled) throw std::runtime_error("the menu entry is grey");
  program_.handle({EventKind::Menu, &program_.window().form, nullptr, &entry});
}

QPoint Stage::centreOf(std::string_view name) const {
  const auto& control = static_cast<const Box&>(names_.control(name));
  const auto centre = desktop_.centreOnScreen(control);
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

void Stage::wait(int time) { QTest::qWait(time); }

void Stage::shoot(const QString& name) {
  wait(400);
  save(picture(), name);
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
