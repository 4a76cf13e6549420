#include "platform/files/directory_lock.h"

#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/desktop.h"
#include "platform/files/whole_file.h"

namespace mevracard {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds patience{2000};
constexpr milliseconds pause{5};

}  // namespace

DirectoryLock::DirectoryLock(const std::filesystem::path& directory)
    : handle_(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  demand(handle_ >= 0);
  const auto end = steady_clock::now() + patience;
  while (::flock(handle_, LOCK_EX | LOCK_NB) != 0) {
    const int error = errno;
    const bool busy = error == EWOULDBLOCK || error == EINTR;
    if (busy && steady_clock::now() < end) {
      std::this_thread::sleep_for(pause);
      continue;
    }
    ::close(handle_);
    throw PlatformError(busy ? "another program is writing"
                             : std::generic_category().message(error));
  }
}

DirectoryLock::~DirectoryLock() { ::close(handle_); }

void DirectoryLock::sync() const {
  // Some file systems know no sync of a directory: there is nothing to wait for then.
  demand(::fsync(handle_) == 0 || errno == EINVAL);
}

}  // namespace mevracard
