#include "platform/files/whole_file.h"

#include <array>
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

class OpenFile {
 public:
  OpenFile(const std::filesystem::path& path, int flags)
      : handle_(::open(path.c_str(), flags | O_CLOEXEC, 0666)) {
    demand(handle_ >= 0);
  }
  ~OpenFile() {
    if (handle_ >= 0) ::close(handle_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  /// Nothing at the end of the file.
  std::string_view read(std::array<char, 4096>& buffer) const {
    ssize_t count = 0;
    do {
      count = ::read(handle_, buffer.data(), buffer.size());
    } while (count < 0 && errno == EINTR);
    demand(count >= 0);
    return {buffer.data(), static_cast<std::size_t>(count)};
  }
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

void demandPlain(const struct stat& found) {
  if (S_ISDIR(found.st_mode)) throw PlatformError("Is a directory");
  if (!S_ISREG(found.st_mode)) throw PlatformError("Is not a file");
}

}  // namespace

void demand(bool success) {
  if (!success) throw PlatformError(std::generic_category().message(errno));
}

std::string readFile(const std::filesystem::path& path) {
  struct stat found {};
  demand(::stat(path.c_str(), &found) == 0);
  demandPlain(found);
  const OpenFile file(path, O_RDONLY);
  std::string bytes;
  std::array<char, 4096> buffer;
  while (true) {
    const std::string_view more = file.read(buffer);
    if (more.empty()) return bytes;
    bytes += more;
  }
}

void makeFile(const std::filesystem::path& path, std::string_view text) {
  OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL);
  file.write(text);
  file.sync();
  file.close();
}

std::filesystem::path beside(const std::filesystem::path& path) { return path.native() + ".new"; }

void replaceFile(const std::filesystem::path& path, std::string_view text) {
  struct stat old {};
  const bool exists = ::stat(path.c_str(), &old) == 0;
  if (exists) {
    demandPlain(old);
    demand(::access(path.c_str(), W_OK) == 0);
  }
  const std::filesystem::path made = beside(path);
  ::unlink(made.c_str());
  try {
    makeFile(made, text);
    if (exists) demand(::chmod(made.c_str(), old.st_mode & 07777U) == 0);
    demand(std::rename(made.c_str(), path.c_str()) == 0);
  } catch (const PlatformError&) {
    ::unlink(made.c_str());
    throw;
  }
}

}  // namespace mevracard
