#pragma once

#include <cerrno>
#include <string>

namespace mevracard {

/// While one lives, system calls of this thread fail with this error: the `first`-th call of this
/// name, and every later one as well if `onwards`. To open a file to read it is called "look".
class FailingCalls {
 public:
  FailingCalls(std::string call, int first, bool onwards, int error = EIO);
  ~FailingCalls();
  FailingCalls(const FailingCalls&) = delete;
  FailingCalls& operator=(const FailingCalls&) = delete;

  /// Whether so many calls were made that one failed.
  [[nodiscard]] bool happened() const;
};

}  // namespace mevracard
