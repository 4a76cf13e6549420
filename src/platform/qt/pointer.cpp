#include "platform/qt/pointer.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <algorithm>

namespace mevracard {

namespace {

constexpr QSize arrowSize(16, 24);
constexpr int restTime = 2000;  // ms
constexpr int nearEnough = 2;   // pixels

class Arrow final : public QWidget {
 public:
  explicit Arrow(QWidget& window) : QWidget(&window) {
    setObjectName("drawnPointer");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(arrowSize);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainterPath path;
    path.addPolygon(QPolygonF{
        {0.5, 0.5}, {0.5, 17}, {4.5, 13.5}, {7.5, 20.5}, {10.5, 19}, {7.5, 12.5}, {12.5, 12.5}});
    path.closeSubpath();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::white);
    painter.setPen(Qt::black);
    painter.drawPath(path);
  }
};

/// Whether the system's pointer went there, as far as the screen reaches.
bool moveSystemPointer(QPoint target) {
  if (QGuiApplication::platformName().startsWith("wayland")) return false;  // it only complains
  const QRect screens = QGuiApplication::primaryScreen()->virtualGeometry();
  const QPoint reachable(std::clamp(target.x(), screens.left(), screens.right()),
                         std::clamp(target.y(), screens.top(), screens.bottom()));
  QCursor::setPos(reachable);
  return (QCursor::pos() - reachable).manhattanLength() <= nearEnough;
}

}  // namespace

Pointer::Pointer(QWidget& window) : window_(window), drawn_(new Arrow(window)) {
  rest_.setSingleShot(true);
  rest_.setInterval(restTime);
  connect(&rest_, &QTimer::timeout, this, &Pointer::hideDrawn);
}

Pointer::~Pointer() = default;

void Pointer::moveTo(QPoint target) {
  if (window_.isActiveWindow() && moveSystemPointer(target)) {
    hideDrawn();
  } else {
    drawAt(target);
  }
}

void Pointer::drawAt(QPoint target) {
  const QPoint place = window_.mapFromGlobal(target);
  drawn_->move(place);
  drawn_->setVisible(window_.rect().contains(place));
  drawn_->raise();
  realPlace_ = QCursor::pos();
  rest_.start();
  QApplication::instance()->installEventFilter(this);
}

void Pointer::hideDrawn() {
  drawn_->hide();
  rest_.stop();
  QApplication::instance()->removeEventFilter(this);
}

bool Pointer::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    const QPoint now = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if ((now - realPlace_).manhattanLength() > nearEnough) hideDrawn();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mevracard
