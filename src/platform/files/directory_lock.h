#pragma once

#include <filesystem>

namespace mevracard {

/// Keeps other programs of this kind from writing into a directory, as long as it lives. It leaves
/// nothing behind, however the program ends.
class DirectoryLock final {
 public:
  /// Throws PlatformError with the reason if the directory cannot be opened, or if another program
  /// keeps it for longer than anyone needs.
  explicit DirectoryLock(const std::filesystem::path& directory);
  ~DirectoryLock();
  DirectoryLock(const DirectoryLock&) = delete;
  DirectoryLock& operator=(const DirectoryLock&) = delete;

  /// Sees to it that a new name in the directory outlives a power cut. Throws PlatformError.
  void sync() const;

 private:
  int handle_;
};

}  // namespace mevracard
