#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QObject>
#include <QTimer>
#include <memory>
#include <vector>

namespace mevracard {

/// Shows widgets that have moved as pictures gliding to their place. The widget itself stands where
/// it belongs from the first moment and takes the mouse there; only its picture is late.
class Glides final : public QObject {
 public:
  explicit Glides(QWidget& canvas);
  ~Glides() override { endAll(); }

  /// A child of the canvas is to glide along these points, in logical pixels, once all is flushed.
  void plan(QWidget& widget, std::vector<QPointF> path);
  /// Starts what was planned. Where motion is not wanted, or cannot be seen, nothing glides.
  void start();
  /// Ends the glide of a widget, or all of them: each widget then shows in its place.
  void end(const QWidget& widget);
  void endAll();

 protected:
  /// Ends all glides before a mouse button or a key does anything.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Glide {
    QWidget* widget;
    std::vector<QPointF> path;
    std::unique_ptr<QLabel> picture;
    QElapsedTimer time;
  };

  void begin(Glide glide);
  void advance();
  static void finish(Glide& glide);
  void stopIfDone();

  QWidget& canvas_;
  std::vector<Glide> planned_, running_;
  QTimer frame_;
};

}  // namespace mevracard
