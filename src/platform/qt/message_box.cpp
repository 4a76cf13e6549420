#include "platform/qt/message_box.h"

#include <QApplication>
#include <QPushButton>

#include "platform/qt/look.h"
#include "platform/qt/menu.h"

namespace mevracard {

void showMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                    const QString& text) {
  closeMenus();
  QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
  box.setObjectName("messageBox");
  box.setTextFormat(Qt::PlainText);
  box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowCloseButtonHint);
  box.button(QMessageBox::Ok)->setIcon({});
  box.adjustSize();
  if (parent != nullptr) box.move(areaOf(*parent).center() - box.rect().center());
  box.exec();
}

}  // namespace mevracard
