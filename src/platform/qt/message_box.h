#pragma once

#include <QMessageBox>

namespace mevracard {

/// Shows a modal box with an OK button and waits until it is closed. `parent` may be null.
void showMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                    const QString& text);

}  // namespace mevracard
