#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>

#include "platform/event.h"
#include "platform/qt/glides.h"
#include "platform/qt/menu.h"
#include "platform/qt/surface.h"
#include "platform/qt/widget_host.h"

namespace mevracard {

/// A Form on the screen: the first one is the main window, the others stay in front of it.
class FormWindow final : public QMainWindow, private WidgetHost {
 public:
  /// Gets every event; false if it cannot be taken now.
  using Deliver = std::function<bool(const Event&)>;

  FormWindow(Form& form, Deliver deliver, QWidget* mainWindow);
  ~FormWindow() override { glides_.endAll(); }

  [[nodiscard]] Form& form() const { return form_; }
  /// Brings it up to date with its form.
  void flush();
  /// Shows it in front, with the keyboard.
  void open();
  /// The widget of a control; null for lines and shapes.
  [[nodiscard]] QWidget* widgetOf(const Control& control) const;
  /// Delivers a tick that could not be taken when it came.
  void deliverDueTick();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void send(EventKind kind, Control& control, int value) override;
  void focusMoved(Control& control, Qt::FocusReason reason) override;
  Glides& glides() override { return glides_; }
  bool tabReaches(const Control& keysOnly) const override {
    return form_.defaultFocus == &keysOnly;
  }

  void placeOnScreen();
  /// Gives the keyboard to a window in front that takes events.
  void passKeyboardOn();
  void flushTimer();
  void flushFocus();
  void tick();

  Form& form_;
  Deliver deliver_;
  Surface* client_;
  Glides glides_;
  std::unique_ptr<Menu> menu_;
  QTimer timer_;
  unsigned armings_ = 0;
  bool tickDue_ = false;
  bool flushing_ = false;
  Control* flushedFocus_ = nullptr;
  Position flushedPosition_;
};

}  // namespace mevracard
