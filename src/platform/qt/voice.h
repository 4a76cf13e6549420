#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/speech.h"

namespace mevracard {

/// Hands a window's speech on to assistive technology. What is asked for stands in the accessible
/// tree below the canvas; the news is said at once, and again when the keyboard comes back.
class Voice {
 public:
  /// `listener` has the keyboard, or is about to get it.
  void flush(Speech& speech, QWidget& canvas, QWidget& listener);

 private:
  Speech told_;
  QPointer<QWidget> listener_;
  QString ownName_;  ///< of the listener, when no news is in its name
};

/// From now on every canvas has the accessible tree of its window's speech.
void installVoices();

}  // namespace mevracard
