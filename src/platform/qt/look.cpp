#include "platform/qt/look.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/view.h"

namespace mevracard {

namespace {

constexpr double largestFont = 500;

QStringList familiesOf(std::string_view family) {
  if (family == "Times New Roman") return {"Liberation Serif", "Times New Roman", "Times", "serif"};
  return {"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans", "sans-serif"};
}

QPalette lightPalette() {
  QPalette palette(QColor(226, 224, 218), QColor(240, 240, 240));
  palette.setColor(QPalette::Base, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::black);
    palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
  }
  palette.setColor(QPalette::Highlight, QColor(0, 84, 166));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  return palette;
}

}  // namespace

QColor toColor(Color color) { return {color.red, color.green, color.blue}; }

QRect toRect(const Dots& dots) { return {dots.left, dots.top, dots.width, dots.height}; }

Dots toDots(const QRect& rect) { return {rect.x(), rect.y(), rect.width(), rect.height()}; }

QFont toFont(const Font& font, double dotsPerPixel) {
  constexpr double pixelsPerPoint = 96.0 / 72.0;
  // Rather a little larger than smaller: small digits are hard to read, and captions that do not
  // fit are made smaller anyway.
  constexpr double smallestStepUp = 0.25;
  const double wanted = font.size * pixelsPerPoint * dotsPerPixel;
  const double pixels = wanted >= 1 ? std::min(wanted, largestFont) : 1;  // also if no number
  QFont result;
  result.setFamilies(familiesOf(font.family));
  result.setPixelSize(static_cast<int>(std::ceil(pixels - smallestStepUp)));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  return result;
}

QString toText(std::string_view text) {
  QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  return result.replace("\r\n", "\n").replace('\r', '\n');
}

QRect areaOf(const QWidget& window) {
  return window.isMaximized() ? window.screen()->availableGeometry() : window.frameGeometry();
}

double growthOf(const QWidget& window) {
  const QSize screen = window.screen()->size();
  return growthOn(screen.width(), screen.height());
}

void applyLook() {
  // The menu belongs to the table on every desktop; to look for another place takes a while.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(lightPalette());
  QApplication::setLayoutDirection(Qt::LeftToRight);
  QApplication::setFont(toFont({"MS Sans Serif", 9.75F}, 1));
}

void applyIcon() {
  // The format said, so that the toolkit does not load a library for every other one first.
  QApplication::setWindowIcon(QPixmap(":/mevracard.png", "PNG"));
}

}  // namespace mevracard
