#include "platform/qt/system_end.h"

#include <QCoreApplication>
#include <QEvent>
#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace mevracard {

namespace {

// A signal's handler knows nothing but what is global, and may do hardly more than write.
volatile std::sig_atomic_t signalPipe = -1;

void noteSignal(int /*number*/) {
  const int error = errno;
  [[maybe_unused]] const ssize_t written = ::write(signalPipe, "", 1);
  errno = error;
}

}  // namespace

SystemEnd::SystemEnd(std::function<void()> came)
    : came_(std::move(came)), notifier_(QSocketNotifier::Read) {
  if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
    throw std::system_error(errno, std::generic_category());
  }
  signalPipe = pipe_[1];
  connect(&notifier_, &QSocketNotifier::activated, this, [this] {
    char byte = 0;
    if (::read(pipe_[0], &byte, 1) == 1) came_();
  });
  notifier_.setSocket(pipe_[0]);
  notifier_.setEnabled(true);
  struct sigaction noting {};
  noting.sa_handler = noteSignal;
  noting.sa_flags = SA_RESTART;
  for (std::size_t i = 0; i < signals_.size(); ++i) {
    ::sigaction(signals_.at(i), &noting, &before_.at(i));
  }
  qApp->installEventFilter(this);
}

SystemEnd::~SystemEnd() {
  for (std::size_t i = 0; i < signals_.size(); ++i) {
    ::sigaction(signals_.at(i), &before_.at(i), nullptr);
  }
  notifier_.setEnabled(false);
  for (const int end : pipe_) ::close(end);
}

bool SystemEnd::eventFilter(QObject* watched, QEvent* event) {
  // The session manager asks for data to be saved at a checkpoint and before an end that somebody
  // may still call off; only the end itself arrives as this event.
  if (event->type() != QEvent::Quit || watched != qApp) return false;
  came_();
  return true;
}

}  // namespace mevracard
