#pragma once

#include <QWidget>

/// When assistive technology is told where the keyboard is.
namespace mevracard {

/// From now on the keyboard is reported at a place for news only when that has words to say, and
/// at the menu bar only when it is there.
void holdBackFocusReports();

/// Reports that the keyboard has come to a part of a window.
void reportFocus(QWidget& part);

}  // namespace mevracard
