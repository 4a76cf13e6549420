#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

class QWidget;

/// The toolkit's own desktop without a display, and what its windows show.
namespace mevracard {

/// Before the application is made. A platform that the environment wishes for has its way.
void useOffscreen(QSize screen);

/// The dots of a visible window after all that is due has been painted.
[[nodiscard]] QImage shownDots(QWidget& window);
/// The same after all of it has been painted anew.
[[nodiscard]] QImage afreshDots(QWidget& window);

/// The box around all dots in which two pictures differ; none is empty.
[[nodiscard]] QRect differentBox(const QImage& one, const QImage& other);

}  // namespace mevracard
