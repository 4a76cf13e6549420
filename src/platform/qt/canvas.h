#pragma once

#include <QWidget>

#include "platform/picture.h"
#include "platform/qt/control_events.h"
#include "platform/qt/glides.h"
#include "platform/qt/widgets.h"

namespace mevracard {

/// The client area of a window. It paints everything that only shows something, straight from the
/// data, knows what the mouse hits, and holds the keyboard for buttons that only take keys.
class Canvas final : public QWidget {
 public:
  Canvas(Form& form, ControlEvents& events, QWidget& parent);

  /// Brings the screen up to date with the form.
  void flush();
  /// Every frame is where it belongs, at once.
  void endGlides() { glides_.end(); }

  /// What was last painted. A control that lies under a cover is not in it.
  [[nodiscard]] const Picture& picture() const { return picture_; }
  /// Where a control, also one inside a frame, lies on the canvas, in logical pixels.
  [[nodiscard]] QRect placeOf(const Box& control) const;
  /// The label or frame that lies in front at a point in logical pixels; null for none.
  [[nodiscard]] Control* controlAt(QPointF point) const;
  /// The widget that takes the keyboard for a control: its own, or the canvas.
  [[nodiscard]] QWidget& keyboardOf(const Control* control);
  /// Whether a widget on it takes keys that the game knows nothing of: a link, a text.
  [[nodiscard]] bool isPlayersOwn(const QWidget& widget) const {
    return widgets_.isPlayersOwn(widget);
  }
  /// How high it has to be, in logical pixels, for its text to be seen at once.
  [[nodiscard]] int heightOfAll();
  /// Logical pixels from the canvas' corner.
  [[nodiscard]] QPoint toPixels(WindowPoint twips) const;

  [[nodiscard]] const Speech& speech() const { return form_.speech; }
  /// Does what a double-click on the control does.
  void press(Control& control) {
    if (isEnabled()) events_.send(EventKind::DoubleClick, control);
  }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  /// How many times its design size everything is that is not fitted into the window.
  [[nodiscard]] double growth() const;
  [[nodiscard]] Views viewsNow() const;
  /// Dots to the logical pixels that they touch.
  [[nodiscard]] QRect toPixels(const Dots& dots) const;
  void repaintChanges();

  Form& form_;
  ControlEvents& events_;
  Glides glides_;
  Widgets widgets_;
  Views views_;
  Picture picture_;
  Color backColor_;
};

}  // namespace mevracard
