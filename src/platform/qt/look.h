#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string_view>

#include "platform/control.h"

/// How the plain data of a window turns into pixels, colours, fonts and texts of the toolkit.
namespace mevracard {

constexpr double twipsPerLogicalPixel = 15;

/// Logical pixels, with their fraction. What lies absurdly far away is drawn in to a place that
/// still counts in whole numbers.
[[nodiscard]] double toPixels(float twips);
/// The box with each of its edges on the nearest pixel, so that boxes that touch go on touching.
[[nodiscard]] QRect toPixelRect(const Box& box);
[[nodiscard]] QColor toColor(Color color);
/// The font in whole logical pixels, by its size in points at 96 dots per inch.
[[nodiscard]] QFont toFont(const Font& font);
/// Text with line ends as the toolkit wants them.
[[nodiscard]] QString toText(std::string_view text);

/// One light look for the whole program, whatever the desktop's theme says.
void applyLook();

}  // namespace mevracard
