// The program's own definitions of some system calls, found before the library's.
#include "testing/failing_calls.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace mevracard {
namespace {

struct Order {
  std::string call;
  int first = 0;
  bool onwards = false;
  int error = EIO;
  int calls = 0;
};

thread_local Order order;

/// Whether this call is to fail.
bool fails(const char* call) {
  if (order.call != call) return false;
  ++order.calls;
  const bool failing = order.onwards ? order.calls >= order.first : order.calls == order.first;
  if (failing) errno = order.error;
  return failing;
}

template <typename... Arguments>
int run(const char* call, long number, Arguments... arguments) {
  return fails(call) ? -1 : static_cast<int>(::syscall(number, arguments...));
}

}  // namespace

FailingCalls::FailingCalls(std::string call, int first, bool onwards, int error) {
  order = {std::move(call), first, onwards, error, 0};
}
FailingCalls::~FailingCalls() { order = {}; }
bool FailingCalls::happened() const { return order.calls >= order.first; }

}  // namespace mevracard

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(rest, unsigned) : 0;
  va_end(rest);
  // What cannot be read is another matter: the game begins with new files then.
  const bool reads = (flags & (O_ACCMODE | O_DIRECTORY)) == O_RDONLY;
  return mevracard::run(reads ? "look" : "open", SYS_openat, AT_FDCWD, path, flags, mode);
}
int close(int file) {
  // What fails is the report: the file is closed all the same.
  const int closed = static_cast<int>(::syscall(SYS_close, file));
  return mevracard::fails("close") ? -1 : closed;
}
ssize_t read(int file, void* bytes, std::size_t count) {
  if (mevracard::fails("read")) return -1;
  return ::syscall(SYS_read, file, bytes, count);
}
ssize_t write(int file, const void* bytes, std::size_t count) {
  if (mevracard::fails("write")) return -1;
  return ::syscall(SYS_write, file, bytes, count);
}
int fsync(int file) { return mevracard::run("fsync", SYS_fsync, file); }
int flock(int file, int operation) noexcept {
  return mevracard::run("flock", SYS_flock, file, operation);
}
int mkdir(const char* path, mode_t mode) noexcept {
  return mevracard::run("mkdir", SYS_mkdirat, AT_FDCWD, path, mode);
}
int rename(const char* from, const char* to) noexcept {
  return mevracard::run("rename", SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0);
}
}
