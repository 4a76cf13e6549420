#include "platform/qt/paint.h"

#include <QPainterPath>
#include <QPixmapCache>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/qt/look.h"

namespace mevracard {

namespace {

constexpr double linesToBreak = 1.6;  // that a room must hold for a text to begin at its top
constexpr double digitShare = 0.8;    // of a number box's height
constexpr double digitHeight = 0.7;   // of a font's size

int flagOf(Alignment alignment) {
  if (alignment == Alignment::Centre) return Qt::AlignHCenter;
  return alignment == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft;
}

/// How a caption is written.
struct Lettering {
  QString text;
  QFont font;
  int flags = 0;
  QRect place;
};

/// The largest from `font` down to `smallest` dots in which the text fits its room, in one line or
/// broken into several; if none does, the one that stands out the least.
Lettering letteringFor(const QRect& room, QString text, QFont font, int smallest,
                       Alignment alignment) {
  while (text.endsWith(' ')) text.chop(1);  // these may stand outside
  const bool inTheMiddle =
      alignment == Alignment::Centre || room.height() < linesToBreak * QFontMetrics(font).height();
  const int place = flagOf(alignment) | (inTheMiddle ? Qt::AlignVCenter : Qt::AlignTop);
  Lettering best;
  int least = std::numeric_limits<int>::max();
  for (int size = std::max(font.pixelSize(), smallest); size >= smallest && least > 0; --size) {
    font.setPixelSize(size);
    for (const int flags : {place, place | Qt::TextWordWrap}) {
      const QRect whole = QFontMetrics(font).boundingRect(room, flags, text);
      // There is more to spare beside a label than above and below.
      const int out =
          std::max({0, whole.width() - room.width(), 3 * (whole.height() - room.height())});
      if (out >= least) continue;
      least = out;
      best = {text, font, flags, whole};
    }
  }
  return best;
}

void write(QPainter& painter, const QRect& room, const Lettering& lettering) {
  // In the place of a text with less room than that stands something else.
  if (room.isEmpty() || 2 * room.height() < lettering.place.height()) return;
  painter.setFont(lettering.font);
  painter.drawText(room, lettering.flags | Qt::TextDontClip, lettering.text);
}

void paintLook(QPainter& painter, const Item& item, const Line& line) {
  if (isStraight(line)) {
    painter.fillRect(toRect(item.place), toColor(line.borderColor));
    return;
  }
  const View& view = item.view;
  const QLineF middle(view.x(line.x1), view.y(line.y1), view.x(line.x2), view.y(line.y2));
  QLineF across = middle.normalVector();
  across.setLength(view.border(line.borderWidth) / 2.0);
  const QPointF half(across.dx(), across.dy());
  // Not a stroke, whose dots would depend on how much of it is painted at a time.
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(toColor(line.borderColor));
  painter.drawPolygon(
      QPolygonF{middle.p1() + half, middle.p2() + half, middle.p2() - half, middle.p1() - half});
}

void paintLook(QPainter& painter, const Item& item, const Shape& shape) {
  const int width = shape.outlined ? item.view.border(shape.borderWidth) : 0;
  // Half of the outline lies outside; an odd one is moved half a dot, so that it lies on dots.
  const double shift = width % 2 / 2.0;
  const QRectF middle = QRectF(toRect(item.place)).translated(shift, shift);
  QPen pen(Qt::NoPen);
  if (shape.outlined) {
    pen = QPen(toColor(shape.borderColor), width, shape.dashed ? Qt::DashDotDotLine : Qt::SolidLine,
               Qt::FlatCap, Qt::MiterJoin);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.setBrush(shape.filled ? QBrush(toColor(shape.fillColor)) : Qt::NoBrush);
  const double radius = std::min(middle.width(), middle.height()) / 5;
  switch (shape.form) {
    case ShapeForm::Ellipse:
      painter.drawEllipse(middle);
      break;
    case ShapeForm::RoundedRectangle:
      painter.drawRoundedRect(middle, radius, radius);
      break;
    case ShapeForm::Rectangle:
      painter.drawRect(middle);
  }
}

/// A card without its numbers: rounded, with a dark edge and a soft shadow, or with a broad edge in
/// its mark's colour.
void paintCard(QPainter& painter, const QRectF& place, const FrameLook& frame) {
  const QColor back = toColor(frame.backColor);
  const auto fill = [&painter](const QRectF& rect, double radius, const QColor& color) {
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
  };
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (double share = 0.5; share > 0; share -= 0.125) {
    const double d = share * frame.shadow;
    fill(place.adjusted(-d / 2, 0, d, d * 1.5), frame.corner + d / 2, QColor(0, 40, 0, 20));
  }
  const int edge = frame.edge;
  fill(place, frame.corner, frame.mark == frame.backColor ? back.darker(400) : toColor(frame.mark));
  fill(place.adjusted(edge, edge, -edge, -edge), std::max(0.0, frame.corner - edge), back);
}

/// Cards that look the same are painted once.
void paintLook(QPainter& painter, const Item& item, const FrameLook& frame) {
  const QRect bounds = toRect(item.bounds());
  const QRect place = toRect(item.place).translated(-bounds.topLeft());
  const QColor colors[] = {toColor(frame.backColor), toColor(frame.mark)};
  const QString key = QString("card %1 %2 %3 %4 %5")
                          .arg(place.width())
                          .arg(place.height())
                          .arg(frame.edge)
                          .arg(colors[0].rgb())
                          .arg(colors[1].rgb());
  QPixmap card;
  if (!QPixmapCache::find(key, &card)) {
    card = QPixmap(bounds.size());
    card.fill(Qt::transparent);
    QPainter cardPainter(&card);
    paintCard(cardPainter, place, frame);
    cardPainter.end();
    QPixmapCache::insert(key, card);
  }
  painter.drawPixmap(bounds.topLeft(), card);
}

/// A card's number, as large as its box allows.
void paintDigit(QPainter& painter, const Item& item, const QString& text, QFont font) {
  const double height = item.place.height * digitShare;
  font.setPixelSize(std::max(1, static_cast<int>(height / digitHeight)));
  const QFontMetrics metrics(font);
  const QPointF middle = QRectF(toRect(item.place)).center();
  painter.setFont(font);
  painter.drawText(QPointF(std::round(middle.x() - metrics.horizontalAdvance(text) / 2.0),
                           std::round(middle.y() + metrics.capHeight() / 2.0)),
                   text);
}

void paintGround(QPainter& painter, const QRect& place, int edge, const Label& label) {
  if (label.opaque) painter.fillRect(place, toColor(label.backColor));
  if (!label.bordered) return;
  const QRegion inside(place.adjusted(edge, edge, -edge, -edge));
  for (const QRect& side : QRegion(place) - inside) painter.fillRect(side, Qt::black);
}

void paintLook(QPainter& painter, const Item& item, const Label& label) {
  const QRect place = toRect(item.place);
  const int edge = label.bordered ? item.view.border(1) : 0;
  const QString text = toText(label.caption);
  const QFont font = toFont(label.font, item.view.length(1));
  painter.setPen(toColor(label.foreColor));
  if (label.parent != nullptr && text.size() == 1) {
    paintGround(painter, place, edge, label);
    paintDigit(painter, item, text, font);
    return;
  }
  const QRect room = toRect(item.room);
  const Lettering lettering = letteringFor(room, text, font, item.type, label.alignment);
  // What is too small for its text grows around it.
  paintGround(painter, place | lettering.place.adjusted(-edge, -edge, edge, edge), edge, label);
  write(painter, room, lettering);
}

void paintButtonGround(QPainter& painter, const QPushButton& widget, const QRectF& place,
                       const QColor& color, const View& view) {
  QLinearGradient ground(place.topLeft(), place.bottomLeft());
  ground.setColorAt(0, widget.isDown() ? color.darker(115) : color.lighter(112));
  ground.setColorAt(1, color.darker(widget.isDown() ? 108 : 104));
  const auto edge = [&](double width, const QColor& edgeColor) {
    const double half = view.border(width) / 2.0;
    painter.setPen(QPen(edgeColor, 2 * half));
    const double corner = view.length(3);
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), corner, corner);
  };
  painter.setBrush(ground);
  edge(1, color.darker(180));
  painter.setBrush(Qt::NoBrush);
  if (widget.hasFocus()) edge(2, widget.palette().color(QPalette::Highlight));
}

}  // namespace

DotPainter::DotPainter(QWidget& widget) : QPainter(&widget) {
  const QTransform device = deviceTransform();
  scale(1 / device.m11(), 1 / device.m22());
  translate(std::round(device.dx()) - device.dx(), std::round(device.dy()) - device.dy());
}

void paint(QPainter& painter, const Item& item) {
  painter.save();
  painter.setClipRect(toRect(item.bounds()), Qt::IntersectClip);
  if (item.control->parent != nullptr && std::holds_alternative<Line>(item.look)) {
    painter.setClipRect(toRect(item.room), Qt::IntersectClip);
  } else if (item.control->parent != nullptr && std::holds_alternative<Shape>(item.look)) {
    QPainterPath inside;
    const double corner = FrameLook(*item.control->parent, item.room, item.view).corner;
    inside.addRoundedRect(toRect(item.room), corner, corner);
    painter.setClipPath(inside, Qt::IntersectClip);
  }
  std::visit([&](const auto& look) { paintLook(painter, item, look); }, item.look);
  painter.restore();
}

void paintButton(QPushButton& widget, const Button& button, const View& view) {
  DotPainter painter(widget);
  painter.setRenderHint(QPainter::Antialiasing);
  const double ratio = widget.devicePixelRatioF();
  const QRectF place(0, 0, std::floor(widget.width() * ratio), std::floor(widget.height() * ratio));
  const View own = View::plain(std::max(view.length(1), ratio));
  paintButtonGround(painter, widget, place, toColor(button.backColor), own);
  painter.setPen(widget.isEnabled()
                     ? toColor(button.foreColor)
                     : widget.palette().color(QPalette::Disabled, QPalette::ButtonText));
  const int margin = own.border(2);
  const QRect room = place.toRect().adjusted(margin, 0, -margin, 0);
  const QFont font = toFont(button.font, view.length(1));
  const int smallest = View::plain(ratio).border(smallestType);
  write(painter, room, letteringFor(room, widget.text(), font, smallest, Alignment::Centre));
}

QSize smallestSize(const Button& button) {
  QFont font = toFont(button.font, 1);
  font.setPixelSize(static_cast<int>(smallestType));
  const QSize text = QFontMetrics(font).size(0, toText(button.caption));
  constexpr int beside = 4, above = 2;  // pixels
  return text.isEmpty() ? text : text + QSize(2 * beside, 2 * above);
}

}  // namespace mevracard
