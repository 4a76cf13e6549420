#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>
#include <memory>

namespace mevracard {

/// Moves the mouse pointer in the tutorial: the system's own where the platform lets it move
/// and the player has not turned to another program, else one drawn in the window.
class Pointer final : public QObject {
 public:
  /// The drawn pointer stays inside `window`.
  explicit Pointer(QWidget& window);
  ~Pointer() override;

  /// To a point of the screen in logical pixels, or as near as the platform goes.
  void moveTo(QPoint target);

 protected:
  /// The drawn pointer goes when the player moves the real one.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void drawAt(QPoint target);
  void hideDrawn();

  QWidget& window_;
  QWidget* drawn_;
  QTimer rest_;       ///< how long a drawn pointer may stand still
  QPoint realPlace_;  ///< where the real pointer stood when one was drawn
};

}  // namespace mevracard
