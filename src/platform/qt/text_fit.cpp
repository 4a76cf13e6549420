#include "platform/qt/text_fit.h"

#include <QFontMetrics>

namespace mevracard {

namespace {

constexpr double smallestShare = 0.6;  // of the font's size
constexpr double oneLineBox = 2.2;     // lines: a lower box is made for one line

int flagOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::Centre: return Qt::AlignHCenter;
    case Alignment::Right: return Qt::AlignRight;
    case Alignment::Left: break;
  }
  return Qt::AlignLeft;
}

/// Blanks at the end may stand outside.
int widthOf(const QFontMetrics& metrics, const QString& line) {
  qsizetype end = line.size();
  while (end > 0 && line[end - 1] == ' ') --end;
  return metrics.horizontalAdvance(line.left(end));
}

}  // namespace

QFont fitLine(const QString& text, QFont font, QSize room) {
  const int smallest = qMax(1, qRound(font.pixelSize() * smallestShare));
  for (int size = font.pixelSize(); size > smallest; --size) {
    const QFontMetrics metrics(font);
    if (widthOf(metrics, text) <= room.width() && metrics.height() <= room.height()) break;
    font.setPixelSize(size - 1);
  }
  return font;
}

FittedText fitCaption(const QString& text, const QFont& font, QSize room, Alignment alignment) {
  const int lineHeight = QFontMetrics(font).height();
  FittedText fitted{font, flagOf(alignment), lineHeight};
  const bool boxOfOneLine = room.height() < 2 * lineHeight && !text.contains('\n');
  if (boxOfOneLine) {
    fitted.font = fitLine(text, font, room);
    fitted.height = QFontMetrics(fitted.font).height();
  } else {
    fitted.flags |= Qt::TextWordWrap;
    const QRect box(0, 0, room.width(), 0);
    fitted.height = QFontMetrics(font).boundingRect(box, fitted.flags, text).height();
  }
  const bool oneLine = fitted.height <= lineHeight;
  const bool inTheMiddle = oneLine && alignment == Alignment::Centre &&
                           (text.size() == 1 || room.height() < oneLineBox * lineHeight);
  fitted.flags |= inTheMiddle ? Qt::AlignVCenter : Qt::AlignTop;
  return fitted;
}

}  // namespace mevracard
