#include "painting/table.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <stdexcept>

#include "painting/offscreen.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {

namespace {

QImage canvasOf(const FormWindow& window, const QImage& dots) {
  const double ratio = window.devicePixelRatioF();
  const QRect place = window.canvas().geometry();
  return dots.copy(QRectF(QPointF(place.topLeft()) * ratio, QSizeF(place.size()) * ratio).toRect());
}

}  // namespace

Table::Table(const std::string& settings)
    : desktop_(files_.filePath("data").toStdString(),
               {{std::string(settingsFile), settings + "\r\n"},
                {std::string(statisticsFile), emptyStatisticsText()}}),
      program_(desktop_),
      w(program_.window()) {
  program_.start();
  answer();
}

void Table::answer() {
  while (w.timer.enabled) program_.handle({EventKind::Tick, &w.form, nullptr, nullptr, 0});
}

FormWindow& Table::windowOf(const Form& form) const {
  for (const auto& window : desktop_.windows()) {
    if (&window->form() == &form) return *window;
  }
  throw std::runtime_error("never shown: " + std::string(form.name));
}

QImage Table::shown(const Form& form) {
  QCoreApplication::processEvents();  // for windows that have just been opened
  desktop_.present();
  QObject nobody;
  QKeyEvent endsGlides(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
  QCoreApplication::sendEvent(&nobody, &endsGlides);
  return canvasOf(windowOf(form), shownDots(windowOf(form)));
}

QImage Table::afresh(const Form& form) {
  return canvasOf(windowOf(form), afreshDots(windowOf(form)));
}

}  // namespace mevracard
