// Message boxes on screens of several sizes.
#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include "platform/qt/qt_desktop.h"

namespace mevracard {
namespace {

class Boxes : public testing::Test {
 protected:
  Boxes() {
    form_.caption = "Zub";
    form_.maximized = true;
    form_.width = 12345;
    form_.height = 6855;
    desktop_.attach({&form_}, {});
    desktop_.show(form_);
  }

  /// What an error box shows; it must lie on the screen.
  QImage shown(const std::string& text) {
    QImage image;
    QTimer::singleShot(0, [&] {
      QWidget& box = *QApplication::activeModalWidget();
      image = box.grab().toImage();
      const QRect room = box.screen()->availableGeometry();
      EXPECT_EQ(box.frameGeometry().united(room), room);
      EXPECT_EQ(box.windowTitle(), "Zub");
      ok_ = box.findChild<QPushButton*>()->size();
      box.close();
    });
    desktop_.reportError(text);
    return image;
  }

  QSize ok_;

 private:
  QTemporaryDir home_;
  QtDesktop desktop_{home_.path().toStdString(), {}};
  Form form_;
};

// Whatever the text, its last character is seen: another one there makes another picture.
TEST_F(Boxes, ShowTheWholeText) {
  std::string path;
  std::string words;
  while (path.size() < 4000) path += "/longest";
  while (words.size() < 2000) words += "/some folder/another";
  for (const std::string& text :
       {std::string("https://mevracard.example/ cannot be opened: no web browser was foun"), words,
        "/" + path.substr(0, 250) + " cannot be writte", path}) {
    const QImage box = shown(text + 'i');
    EXPECT_EQ(box, shown(text + 'i'));
    EXPECT_NE(box, shown(text + 'M')) << text;
  }
}

// On a large screen boxes are as large as the table beside them.
TEST_F(Boxes, GrowWithTheScreen) {
  const QImage box = shown("Computer Passes. It is now your turn.");
  const bool large = QGuiApplication::primaryScreen()->size() == QSize(3840, 2160);
  EXPECT_NEAR(ok_.height(), large ? 33 * 1.8 : 33, 1);
  EXPECT_GE(box.width(), 7 * ok_.height());
}

}  // namespace
}  // namespace mevracard
