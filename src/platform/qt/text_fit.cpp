#include "platform/qt/text_fit.h"

#include <QFontMetrics>

namespace mevracard {

namespace {

constexpr double smallestShare = 0.6;  // of the font's size
constexpr double oneLineBox = 2.2;     // lines: a lower box is made for one line

int flagOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::Centre:
      return Qt::AlignHCenter;
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

/// Blanks at the end may stand outside.
int widthOf(const QFontMetrics& metrics, const QString& line) {
  qsizetype end = line.size();
  while (end > 0 && line[end - 1] == ' ') --end;
  return metrics.horizontalAdvance(line.left(end));
}

int smallestSize(const QFont& font) { return qMax(1, qRound(font.pixelSize() * smallestShare)); }

int wrappedHeight(const QString& text, const QFont& font, int width) {
  return QFontMetrics(font).boundingRect({0, 0, width, 0}, Qt::TextWordWrap, text).height();
}

}  // namespace

QFont fitLine(const QString& text, QFont font, QSize room) {
  const int smallest = smallestSize(font);
  for (int size = font.pixelSize(); size > smallest; --size) {
    const QFontMetrics metrics(font);
    if (widthOf(metrics, text) <= room.width() && metrics.height() <= room.height()) break;
    font.setPixelSize(size - 1);
  }
  return font;
}

FittedText fitCaption(const QString& text, const QFont& font, QSize room, Alignment alignment) {
  const int lineHeight = QFontMetrics(font).height();
  const bool paragraphs = text.contains('\n');
  FittedText fitted{font, flagOf(alignment), lineHeight};
  if (room.height() < 2 * lineHeight && !paragraphs) {
    fitted.font = fitLine(text, font, room);
    fitted.height = QFontMetrics(fitted.font).height();
  } else {
    fitted.flags |= Qt::TextWordWrap;
    fitted.height = wrappedHeight(text, font, room.width());
    // A caption is made smaller until it fits; a text of several paragraphs is to be scrolled.
    for (int size = font.pixelSize() - 1; size >= smallestSize(font); --size) {
      if (paragraphs || fitted.height <= room.height()) break;
      fitted.font.setPixelSize(size);
      fitted.height = wrappedHeight(text, fitted.font, room.width());
    }
  }
  const bool oneLine = 2 * fitted.height < 3 * QFontMetrics(fitted.font).height();
  const bool inTheMiddle = oneLine && alignment == Alignment::Centre &&
                           (text.size() == 1 || room.height() < oneLineBox * lineHeight);
  fitted.flags |= inTheMiddle ? Qt::AlignVCenter : Qt::AlignTop;
  return fitted;
}

}  // namespace mevracard
