#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/speech.h"

namespace mevracard {

/// Hands a window's speech on to assistive technology. What is asked for stands in the accessible
/// tree below the canvas; the news are in the name of the widget that has the keyboard, as changes
/// elsewhere are not said.
class Voice {
 public:
  /// `listener` has the keyboard, or is about to get it.
  void flush(const Speech& speech, QWidget& canvas, QWidget& listener);

 private:
  void tell(const QString& news, QWidget& listener);

  Speech told_;
  QPointer<QWidget> listener_;
};

/// From now on every canvas has the accessible tree of its window's speech.
void installVoices();

}  // namespace mevracard
