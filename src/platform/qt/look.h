#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string_view>

#include "platform/control.h"
#include "platform/dots.h"

class QWidget;

/// How the plain data of a window turns into colours, fonts and texts of the toolkit.
namespace mevracard {

[[nodiscard]] QColor toColor(Color color);
[[nodiscard]] QRect toRect(const Dots& dots);
[[nodiscard]] Dots toDots(const QRect& rect);
/// The font in whole dots, where a pixel at 96 dots per inch is this many of them.
[[nodiscard]] QFont toFont(const Font& font, double dotsPerPixel);
/// Text with line ends as the toolkit wants them.
[[nodiscard]] QString toText(std::string_view text);

/// The part of the screen that a window takes up, or will once it is maximized.
[[nodiscard]] QRect areaOf(const QWidget& window);

/// How many times its design size is what stands beside the table, on this window's screen.
[[nodiscard]] double growthOf(const QWidget& window);

/// One light look for the whole program, whatever the desktop's theme says.
void applyLook();
/// The icon of every window, also of those that are open.
void applyIcon();

}  // namespace mevracard
