#include "platform/qt/whole_file.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/desktop.h"

namespace mevracard {

namespace {

class NewFile {
 public:
  explicit NewFile(const std::string& path)
      : handle_(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {
    demand(handle_ >= 0);
  }
  ~NewFile() {
    if (handle_ >= 0) ::close(handle_);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void write(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t count = ::write(handle_, text.data(), text.size());
      if (count < 0 && errno == EINTR) continue;
      demand(count > 0);
      text.remove_prefix(static_cast<std::size_t>(count));
    }
  }
  void sync() const { demand(::fsync(handle_) == 0); }
  /// A file system on another machine may report only here that the disk is full.
  void close() { demand(::close(std::exchange(handle_, -1)) == 0); }

 private:
  int handle_;
};

void copyPermissions(const std::string& from, const std::string& to) {
  struct stat old {};
  if (::stat(from.c_str(), &old) == 0) demand(::chmod(to.c_str(), old.st_mode & 07777U) == 0);
}

}  // namespace

void demand(bool success) {
  if (!success) throw PlatformError(std::generic_category().message(errno));
}

void makeFile(const std::string& path, std::string_view text) {
  NewFile file(path);
  file.write(text);
  file.sync();
  file.close();
}

std::string beside(const std::string& path) { return path + ".new"; }

void replaceFile(const std::string& path, std::string_view text) {
  const std::string made = beside(path);
  ::unlink(made.c_str());
  try {
    makeFile(made, text);
    copyPermissions(path, made);
    demand(std::rename(made.c_str(), path.c_str()) == 0);
  } catch (const PlatformError&) {
    ::unlink(made.c_str());
    throw;
  }
}

}  // namespace mevracard
