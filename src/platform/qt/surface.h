#pragma once

#include <QWidget>
#include <unordered_map>
#include <vector>

#include "platform/control.h"
#include "platform/qt/graphic.h"
#include "platform/qt/label_widget.h"
#include "platform/qt/widget_host.h"

namespace mevracard {

/// Lines and shapes that lie in front of widgets. The mouse goes through it.
class Overlay final : public QWidget {
 public:
  explicit Overlay(QWidget& parent);
  void flush(std::vector<Graphic> graphics);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Graphic> graphics_;
};

/// A panel with controls on it: the client area of a window, or a frame. It paints the lines and
/// shapes that have no widget behind them itself; the others are on overlays.
class Surface : public QWidget {
 public:
  /// `controls` is in depth order and outlives the surface.
  Surface(const std::vector<Control*>& controls, WidgetHost& host, QWidget& parent);

  /// Brings everything on it up to date. True if anything changed.
  bool flush(Color backColor);
  /// The widget of a control on this surface or on a frame of it; null for lines and shapes, and
  /// for what was never flushed.
  [[nodiscard]] QWidget* widgetOf(const Control& control) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] QColor backColor() const { return backColor_; }

 private:
  struct Arrangement;

  QWidget& widgetFor(Control& control);
  bool flushWidget(Control& control, std::size_t depth);
  [[nodiscard]] Exposure exposureOf(const Label& label, std::size_t depth) const;
  [[nodiscard]] Arrangement arrange() const;
  bool flushGraphics();
  bool paintGround(std::vector<Graphic> ground);
  Overlay& overlay(std::size_t index);
  bool restack(const std::vector<QWidget*>& order);

  const std::vector<Control*>& controls_;
  WidgetHost& host_;
  QColor backColor_;
  std::unordered_map<const Control*, QWidget*> widgets_;
  std::vector<Graphic> ground_;
  std::vector<Overlay*> overlays_;
  std::vector<QWidget*> stacked_;  ///< all widgets and overlays, back to front as they now lie
};

/// A Frame on the screen.
class FrameWidget final : public Surface {
 public:
  FrameWidget(Frame& frame, WidgetHost& host, QWidget& parent);

  /// Brings it up to date. If it has come along a track, it is to glide.
  bool flush();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  bool flushPlace();
  /// Says what its readable labels say, for assistive technology.
  void nameItself();

  Frame& frame_;
  WidgetHost& host_;
};

}  // namespace mevracard
