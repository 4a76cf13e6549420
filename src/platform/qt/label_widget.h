#pragma once

#include <QLabel>

#include "platform/control.h"
#include "platform/qt/control_events.h"
#include "platform/qt/text_fit.h"

class QScrollBar;

namespace mevracard {

/// What of a label can be seen behind the things in front of it.
struct Exposure {
  bool covered = false;  ///< nothing
  QRect clear;           ///< where no button or scroll bar stands in the way of its text
  bool operator==(const Exposure&) const = default;
};

/// A Label on the screen. It paints itself; the toolkit's label gives it its voice for assistive
/// technology.
class LabelWidget final : public QLabel {
 public:
  LabelWidget(Label& label, ControlEvents& events, QWidget& parent);

  /// Brings it up to date. Behind a cover it is not shown and its text is nowhere to be read.
  /// True if anything changed.
  bool flush(const Exposure& exposure);
  [[nodiscard]] bool isLink() const { return look_.link; }
  /// A link's click, by any means.
  void press() { events_.send(EventKind::Click, label_); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  /// Everything that shows, as it was last flushed.
  struct Look {
    bool visible = false;
    bool enabled = true;
    QRect place;
    QRect clear;
    std::string caption;
    Font font;
    Alignment alignment = Alignment::Left;
    bool bordered = false, opaque = true, link = false;
    Color backColor, foreColor;
    bool operator==(const Look&) const = default;
  };

  [[nodiscard]] Look lookOf(const Exposure& exposure) const;
  /// Where text may stand: inside the border and the window, clear of buttons.
  [[nodiscard]] QRect room() const;
  /// Where the fitted text is drawn, which reaches beyond the room while it is scrolled.
  [[nodiscard]] QRect textPlace() const;
  [[nodiscard]] bool isScrolled() const;
  void fit();
  void fitScrollBar();

  Label& label_;
  ControlEvents& events_;
  Look look_;
  FittedText fitted_;
  QScrollBar* scrollBar_ = nullptr;  ///< made when a text first needs it
};

}  // namespace mevracard
