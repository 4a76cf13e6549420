#include "platform/qt/message_box.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "platform/event.h"
#include "platform/placing.h"
#include "platform/qt/key_code.h"
#include "platform/qt/look.h"
#include "platform/qt/paint.h"

namespace mevracard {

namespace {

// All in pixels, on a screen on which nothing grows.
constexpr int usualWidth = 480;  // of a text that breaks
constexpr int smallestBoxType = 8;
constexpr int margin = 12;
constexpr QSize buttonSize(65, 33);
constexpr int signSize = 32;
constexpr int titleButtons = 130;  // what the window manager needs beside a title
constexpr QSize windowFrame(16, 48);
constexpr Font usualType{"MS Sans Serif", 9.75F};

/// A text that breaks at blanks, and a word that is too long for a line anywhere.
class Text final : public QLabel {
 public:
  explicit Text(const QString& text) : QLabel(text) {
    setTextFormat(Qt::PlainText);
    document_.setPlainText(text);
    document_.setDocumentMargin(0);
  }

  /// Makes it wider than usual, and its type smaller, only where it would not fit otherwise.
  void fit(int usual, QSize room) {
    QFont type = font();
    setMeasures(type, std::min(usual, room.width()));
    for (int size = type.pixelSize(); height() > room.height() && size >= smallestBoxType; --size) {
      type.setPixelSize(size);
      setMeasures(type, room.width());
    }
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    document_.drawContents(&painter);
  }

 private:
  void setMeasures(const QFont& type, int width) {
    document_.setDefaultFont(type);
    document_.setTextWidth(width);
    setFixedSize(static_cast<int>(std::ceil(document_.idealWidth())),
                 static_cast<int>(std::ceil(document_.size().height())));
  }

  QTextDocument document_;
};

/// Looks as the table's buttons do.
class OkButton final : public QPushButton {
 public:
  explicit OkButton(double growth) : QPushButton("OK"), growth_(growth) {
    setFixedSize(buttonSize * growth);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    event->key() == Qt::Key_Space ? QPushButton::keyPressEvent(event) : event->ignore();
  }
  void paintEvent(QPaintEvent* /*event*/) override {
    paintButton(*this, Button(), View::plain(devicePixelRatioF() * growth_));
  }

 private:
  double growth_;
};

QLabel* warningSign(int size) {
  auto* sign = new QLabel;
  sign->setPixmap(sign->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
  return sign;
}

}  // namespace

MessageBox::MessageBox(QWidget* parent, Kind kind, const QString& title, const QString& text)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      text_(text),
      growth_(growthOf(*this)),
      ok_(new OkButton(growth_)) {
  setObjectName("messageBox");
  setWindowTitle(title);
  auto* grid = new QGridLayout(this);
  const int around = grown(margin);
  grid->setContentsMargins(around, around, around, around);
  grid->setSpacing(around);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  const int sign = kind == Kind::Error ? grown(signSize) : 0;
  if (sign > 0) grid->addWidget(warningSign(sign), 0, 0, Qt::AlignTop);

  const QSize room = screen()->availableGeometry().size() - windowFrame -
                     QSize(sign + 3 * around, grown(buttonSize.height()) + 3 * around);
  auto* label = new Text(text);
  label->setFont(toFont(usualType, growth_));
  label->fit(grown(usualWidth), room);
  const int column = sign > 0 ? 1 : 0;
  grid->addWidget(label, 0, column, Qt::AlignCenter);
  const int titleWidth = fontMetrics().horizontalAdvance(title) + titleButtons;
  grid->setColumnMinimumWidth(column, std::min(room.width(), titleWidth));

  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  grid->addWidget(ok_, 1, 0, 1, column + 1, Qt::AlignHCenter);
  ok_->setFocus();
}

int MessageBox::grown(int pixels) const { return static_cast<int>(pixels * growth_); }

void MessageBox::keyPressEvent(QKeyEvent* event) {
  const int key = keyCodeOf(*event);
  if (key == 0 || key == keyEnter || key == keyEscape) return QDialog::keyPressEvent(event);
  if (!QAccessible::isActive()) return;
  speech_.tell("Enter closes the message. ");
  voice_.flush(*ok_);
}

void MessageBox::waitAt(QPoint middle) {
  adjustSize();
  if (parentWidget() != nullptr) {
    const QRect wanted(middle - rect().center(), size() + windowFrame);
    const Dots place = placeInside(toDots(wanted), toDots(screen()->availableGeometry()));
    move(place.left, place.top);
  }
  exec();
}

}  // namespace mevracard
