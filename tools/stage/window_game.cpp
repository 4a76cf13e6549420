#include "stage/window_game.h"

#include <QApplication>
#include <QFile>
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
  put("sys32rtn.dat", emptyStatisticsText());
  return home.path();
}

bool showsTheScreen() { return QGuiApplication::platformName() == "xcb"; }

}  // namespace

WindowGame::WindowGame(int seed, const std::string& settings)
    : desktop_(folderWith(home_, settings), seed), program_(desktop_) {
  QObject::connect(&closer_, &QTimer::timeout, [this] { closeMessageBox(); });
  closer_.start(30);
}

void WindowGame::closeMessageBox() {
  auto* box = dynamic_cast<MessageBox*>(QApplication::activeModalWidget());
  if (!answersBoxes || box == nullptr || !box->isVisible()) return;
  // Elsewhere a window may never get the keyboard.
  if (showsTheScreen() && !box->isActiveWindow()) return;
  messages.push_back(box->text().toStdString());
  closer_.stop();  // what happens to the box takes its time
  beforeBoxCloses();
  closer_.start();
  QTest::keyClick(box, Qt::Key_Return);
}

void WindowGame::start() {
  program_.start();
  (void)QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }, 20'000);
  wait(300);
}

void WindowGame::wait(int time) { QTest::qWait(time); }

QPixmap WindowGame::picture() {
  if (showsTheScreen()) return QGuiApplication::primaryScreen()->grabWindow(0);
  QWidget* largest = nullptr;
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && (largest == nullptr || top->width() > largest->width())) largest = top;
  }
  return largest == nullptr ? QPixmap() : largest->grab();
}

void WindowGame::save(const QPixmap& pixmap, const QString& name) {
  if (!pixmap.save(name + ".png")) throw std::runtime_error("a picture cannot be written");
}

void WindowGame::shoot(const QString& name) {
  wait(400);
  save(picture(), name);
}

}  // namespace mevracard
