#pragma once

#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <unordered_map>

#include "platform/picture.h"
#include "platform/qt/control_events.h"

namespace mevracard {

/// The controls of a window at which the player presses, types or scrolls: widgets of the toolkit,
/// children of the canvas. They are made when they first show.
class Widgets final : public QObject {
 public:
  Widgets(const Form& form, ControlEvents& events, QWidget& canvas);

  /// Brings them up to date; reports nothing.
  void flush(const Views& views);
  /// How high the canvas has to be, in logical pixels, for its text to be seen at once; 0 without
  /// a text.
  [[nodiscard]] int heightOfAll(const Views& views);
  /// Null for a control that is none, or that was never seen.
  [[nodiscard]] QWidget* of(const Control& control) const;
  /// Whether it is the widget of a control that never has the form's focus.
  [[nodiscard]] bool isPlayersOwn(const QWidget& widget) const;

 protected:
  /// Paints buttons, and reports presses and the keyboard as they come to the widgets.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* make(Control& control);
  QWidget* makeText(const Label& label);
  static void makeLink(QPushButton& link, const Label& label);
  void flush(QWidget& widget, const Control& control);
  [[nodiscard]] QRect placeOf(const Box& box) const;
  /// How many times its design size a small window is.
  [[nodiscard]] double growth() const;

  const Form& form_;
  ControlEvents& events_;
  QWidget& canvas_;
  Views views_;
  std::unordered_map<const Control*, QWidget*> widgets_;
  std::unordered_map<const QObject*, Control*> controls_;
};

}  // namespace mevracard
