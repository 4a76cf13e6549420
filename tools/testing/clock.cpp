#include "testing/clock.h"

#include <ctime>

#include <sys/time.h>

namespace mevracard::monkey {

namespace {

constexpr long start = 1'800'000'000;  // a day in 2027, in seconds
long passed = 0;                       // ms

}  // namespace

void addTime(int milliseconds) { passed += milliseconds; }
int timeNow() { return static_cast<int>(passed); }

}  // namespace mevracard::monkey

// A program's own definitions come before the system library's, for all libraries in it.
extern "C" int clock_gettime(clockid_t /*clock*/, timespec* time) noexcept {
  using namespace mevracard::monkey;
  *time = {start + passed / 1000, passed % 1000 * 1'000'000};
  return 0;
}

extern "C" int gettimeofday(timeval* time, void* /*zone*/) noexcept {
  using namespace mevracard::monkey;
  *time = {start + passed / 1000, passed % 1000 * 1000};
  return 0;
}
