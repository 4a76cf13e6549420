#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

#include "platform/event.h"
#include "platform/placing.h"
#include "platform/qt/canvas.h"
#include "platform/qt/menu.h"
#include "platform/qt/voice.h"

namespace mevracard {

/// A Form on the screen: the first one is the main window, the others stay in front of it.
class FormWindow final : public QMainWindow, private ControlEvents {
 public:
  /// Gets every event; false if it cannot be taken now.
  using Deliver = std::function<bool(const Event&)>;

  /// `mainWindow` is null for the main window itself.
  FormWindow(Form& form, Deliver deliver, FormWindow* mainWindow);

  [[nodiscard]] Form& form() const { return form_; }
  /// Brings it up to date with its form.
  void flush();
  /// Shows it in front, with the keyboard.
  void open();
  [[nodiscard]] const Canvas& canvas() const { return *canvas_; }
  /// The place of a control on the screen, in logical pixels.
  [[nodiscard]] QRect placeOnScreen(const Box& control) const;
  /// Where a box that concerns the whole table stands in the middle.
  [[nodiscard]] QPoint middle() const;
  /// Delivers a tick that could not be taken when it came.
  void deliverDueTick();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void send(EventKind kind, Control& control, int value) override;
  void focusMoved(Control& control, Qt::FocusReason reason) override;

  /// As large as its form says, or higher where its text needs that and the screen has room.
  void flushSize();
  /// How much larger it is with what the window system draws around it.
  [[nodiscard]] QSize frame() const;
  void moveToItsPlace();
  /// The nearest place where the table is not covered, if the main window is high enough for one.
  [[nodiscard]] std::optional<Dots> aboveOrBelowTable(const Dots& wanted) const;
  /// Moves off what it must not lie on.
  void makeWay();
  void moveTo(const Dots& place);
  /// The groups of what it is to lie clear of; those alone that it must always be clear of.
  [[nodiscard]] ClearGroups clearGroups(bool always) const;
  /// Gives the keyboard to a window in front that takes events.
  void passKeyboardOn();
  void flushTimer();
  void flushFocus();
  /// Whether there is something that Esc presses or closes.
  bool escape();
  void tick();

  /// Where the form wants its window, and whether it wants it there at all.
  using Whereabouts = std::pair<WindowPoint, bool>;

  Form& form_;
  Deliver deliver_;
  FormWindow* main_;
  Canvas* canvas_;
  std::unique_ptr<Menu> menu_;
  Voice voice_;
  QTimer timer_;
  unsigned armings_ = 0;
  bool tickDue_ = false;
  bool flushing_ = false;
  Control* flushedFocus_ = nullptr;
  Whereabouts flushedWhereabouts_;
  QPoint movedTo_;  ///< where the program put it; the player may have moved it since
};

}  // namespace mevracard
