#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string_view>

#include "platform/control.h"

class QWidget;

/// How the plain data of a window turns into pixels, colours, fonts and texts of the toolkit.
namespace mevracard {

constexpr double twipsPerLogicalPixel = 15;

/// Logical pixels, with their fraction. What lies absurdly far away is drawn in to a place that
/// still counts in whole numbers.
[[nodiscard]] double toPixels(float twips);
/// The box on whole pixels: boxes of one size, such as cards, keep one size wherever they stand.
[[nodiscard]] QRect toPixelRect(const Box& box);
[[nodiscard]] QColor toColor(Color color);
/// The font in whole logical pixels, by its size in points at 96 dots per inch.
[[nodiscard]] QFont toFont(const Font& font);
/// Text with line ends as the toolkit wants them.
[[nodiscard]] QString toText(std::string_view text);

/// The part of the screen that a window takes up, or will once it is maximized.
[[nodiscard]] QRect areaOf(const QWidget& window);

/// One light look for the whole program, whatever the desktop's theme says.
void applyLook();

}  // namespace mevracard
