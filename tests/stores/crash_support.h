// What tests need of processes that are killed and of disks that fill up.
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>

#include "tests/platform/files/child_process.h"

namespace stores {

// Numbers that a process sends while it works.
class Counter {
 public:
  Counter() { EXPECT_EQ(::pipe(ends_.data()), 0); }
  ~Counter() {
    for (const int end : ends_) ::close(end);
  }
  Counter(const Counter&) = delete;
  Counter& operator=(const Counter&) = delete;

  bool send(int number) { return ::write(ends_[1], &number, sizeof number) == sizeof number; }
  [[nodiscard]] int receive() {
    int number = -1;
    return ::read(ends_[0], &number, sizeof number) == sizeof number ? number : -1;
  }
  // What was sent and not received yet, when nobody sends any more.
  [[nodiscard]] int last(int known) {
    ::close(ends_[1]);
    ends_[1] = -1;
    for (int number = receive(); number >= 0; number = receive()) known = number;
    return known;
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

// Files of this process grow no further, as on a full disk.
inline void limitFileSize(rlim_t bytes) {
  const rlimit limit{bytes, bytes};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  ::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace stores
