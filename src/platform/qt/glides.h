#pragma once

#include <QObject>
#include <QVariantAnimation>
#include <functional>
#include <vector>

#include "platform/picture.h"

namespace mevracard {

/// Frames on their way to where they belong: those of one turn one after the other. A frame takes
/// the mouse in its place from the first moment; only its picture is late.
class Glides final : public QObject {
 public:
  /// `changed` is called whenever a frame has moved on.
  explicit Glides(std::function<void()> changed);

  /// Starts these, in place of any before; `seen` is the picture that the player still sees.
  void start(std::vector<Glide> glides, const Picture& seen);
  /// Every frame is where it belongs, at once.
  void end();
  /// Where a frame is to be painted.
  [[nodiscard]] WindowPoint placeOf(const Frame& frame) const;
  /// Lets frames that wait for their way look as they lay: not turned yet, nor uncovered.
  void keepWaiting(Picture& picture) const;
  /// The picture that was seen fits the window no more.
  void forgetSeen() { seen_.clear(); }

 protected:
  /// Ends all glides before a mouse button or a key does anything.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> changed_;
  std::vector<Glide> glides_;  ///< those under way
  Picture seen_;               ///< when they started
  QVariantAnimation clock_;    ///< runs from 0 to their number
};

}  // namespace mevracard
