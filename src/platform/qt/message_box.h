#pragma once

#include <QMessageBox>

namespace mevracard {

/// Shows a modal box with an OK button in the middle of a place on the screen and waits until it is
/// closed. `parent` may be null; the box then stands where the window system puts it.
void showMessageBox(QWidget* parent, QPoint middle, QMessageBox::Icon icon, const QString& title,
                    const QString& text);

}  // namespace mevracard
