#pragma once

#include <QFont>
#include <QSize>
#include <QString>

#include "platform/control.h"

namespace mevracard {

/// How a caption is drawn into its box.
struct FittedText {
  QFont font;
  int flags = 0;   ///< for QPainter::drawText
  int height = 0;  ///< of the wrapped text, in pixels; more than the room where it must be scrolled
};

/// A caption of a label. A box of one line gets a font small enough for the whole caption, a taller
/// box gets line breaks. A centred line stands in the middle of a box that is made for one line.
[[nodiscard]] FittedText fitCaption(const QString& text, const QFont& font, QSize room,
                                    Alignment alignment);

/// The font in which one line fits into the room, at most as large as `font` and no smaller than
/// can still be read.
[[nodiscard]] QFont fitLine(const QString& text, QFont font, QSize room);

}  // namespace mevracard
