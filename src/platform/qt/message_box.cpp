#include "platform/qt/message_box.h"

#include <QGridLayout>
#include <QLabel>

#include "platform/qt/menu.h"

namespace mevracard {

namespace {

/// Wide enough to read the title, and without the blanks that stand for an icon that is not there.
void tidy(QMessageBox& box) {
  constexpr int titleButtons = 130;  // pixels that the window manager needs beside a title
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  auto* text = box.findChild<QLabel*>("qt_msgbox_label");
  if (grid == nullptr || text == nullptr) return;
  if (box.icon() == QMessageBox::NoIcon) {
    QLayoutItem* indent = grid->itemAtPosition(0, 0);
    if (indent != nullptr && indent->spacerItem() != nullptr) {
      indent->spacerItem()->changeSize(0, 0);
    }
    text->setIndent(0);
  }
  text->setMinimumWidth(box.fontMetrics().horizontalAdvance(box.windowTitle()) + titleButtons);
}

}  // namespace

void showMessageBox(QWidget* parent, QPoint middle, QMessageBox::Icon icon, const QString& title,
                    const QString& text) {
  closeMenus();
  QMessageBox box(icon, title, text, QMessageBox::NoButton, parent);
  // Not the toolkit's own OK, which looks for an icon in all themes first.
  box.addButton("OK", QMessageBox::AcceptRole);
  box.setObjectName("messageBox");
  box.setTextFormat(Qt::PlainText);
  box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                     Qt::WindowCloseButtonHint);
  tidy(box);
  box.adjustSize();
  if (parent != nullptr) box.move(middle - box.rect().center());
  box.exec();
}

}  // namespace mevracard
