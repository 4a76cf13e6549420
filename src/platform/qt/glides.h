#pragma once

#include <QObject>
#include <QVariantAnimation>
#include <functional>
#include <vector>

#include "platform/form.h"

namespace mevracard {

/// Frames on their way to where they belong: those of one turn one after the other. A frame takes
/// the mouse in its place from the first moment; only its picture is late.
class Glides final : public QObject {
 public:
  /// `changed` is called whenever a frame has moved on.
  explicit Glides(std::function<void()> changed);

  /// Starts these, in place of any before.
  void start(std::vector<Glide> glides);
  /// Every frame is where it belongs, at once.
  void end();
  /// Where a frame is to be painted.
  [[nodiscard]] Position placeOf(const Frame& frame) const;

 protected:
  /// Ends all glides before a mouse button or a key does anything.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> changed_;
  std::vector<Glide> glides_;  ///< those under way
  QVariantAnimation clock_;    ///< runs from 0 to their number
};

}  // namespace mevracard
