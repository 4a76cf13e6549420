#pragma once

#include <QPainter>
#include <QWidget>

#include "platform/picture.h"

class QPushButton;

namespace mevracard {

/// Paints on a widget in dots of its screen, whatever the dots of a pixel are. Whole numbers lie on
/// whole dots.
class DotPainter final : public QPainter {
 public:
  explicit DotPainter(QWidget& widget);
};

/// Paints one control of a picture, without what stands inside it.
void paint(QPainter& painter, const Item& item);

/// Paints a button; `view` is the one that it was placed through.
void paintButton(QPushButton& widget, const Button& button, const View& view);

/// The size in pixels of the smallest button whose caption can be read.
[[nodiscard]] QSize smallestSize(const Button& button);

}  // namespace mevracard
