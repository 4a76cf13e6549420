#pragma once

#include <QAccessible>
#include <QWidget>

#include "platform/speech.h"

/// What assistive technology finds when it looks through a window: the tree below the canvas.
namespace mevracard {

/// A part of a window that is never seen. It has the keyboard in place of the canvas, under the
/// words that it got last.
class NewsPlace final : public QWidget {
 public:
  explicit NewsPlace(QWidget& canvas);
};

/// From now on every canvas has the lists of its window's speech below it.
void installSpokenTrees();

/// Reports how the lists on a canvas differ from those before.
void reportChanges(const std::vector<SpokenList>& before, const std::vector<SpokenList>& now,
                   QWidget& canvas);

}  // namespace mevracard
