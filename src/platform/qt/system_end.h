#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <functional>

namespace mevracard {

/// Tells when the system ends the program: the session is over, or SIGTERM, SIGINT or SIGHUP came.
/// A session that is merely saved, or may still go on, is none of these. One at a time.
class SystemEnd final : public QObject {
 public:
  /// `came` is called from the event loop, that of a message box included, and maybe repeatedly.
  explicit SystemEnd(std::function<void()> came);
  ~SystemEnd() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr std::array signals_{SIGTERM, SIGINT, SIGHUP};

  std::function<void()> came_;
  std::array<int, 2> pipe_{-1, -1};  ///< read end, write end
  QSocketNotifier notifier_;
  std::array<struct sigaction, signals_.size()> before_{};
};

}  // namespace mevracard
