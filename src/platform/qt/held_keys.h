#pragma once

#include <QObject>

class QKeyEvent;

namespace mevracard {

/// Lets Enter, Space and Esc act once however long they are held, also into a window or a box that
/// opens meanwhile. Works on the whole application as long as it lives.
class HeldKeys final : public QObject {
 public:
  HeldKeys();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;

  int releasedKey_ = 0;
  quint64 releaseTime_ = 0;  ///< ms, as the window system counts
};

}  // namespace mevracard
