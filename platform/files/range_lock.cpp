#include "platform/files/range_lock.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

namespace files {
namespace {

// On some network shares a lock keeps others from reading the locked bytes, so the locked bytes
// stand for those of the content but lie far behind them.
constexpr std::int64_t lockArea = std::int64_t{1} << 40;

bool isHeld(int error) {
  return error == EAGAIN || error == EACCES;
}

}  // namespace

int requestLock(int file, short kind, ByteRange range) {
  struct flock request = {};
  request.l_type = kind;
  request.l_whence = SEEK_SET;
  request.l_start = lockArea + range.offset;
  request.l_len = range.length;
  return ::fcntl(file, F_OFD_SETLK, &request) == 0 ? 0 : errno;
}

int awaitLock(int file, short kind, ByteRange range, std::chrono::milliseconds patience) {
  // Asking again, rather than waiting in the kernel, is what can be given up in time. Most locks
  // are held for microseconds, so the first looks follow each other quickly.
  constexpr std::chrono::microseconds longestPause{2000};
  std::chrono::microseconds pause{30};
  const auto end = std::chrono::steady_clock::now() + patience;
  for (;;) {
    const int error = requestLock(file, kind, range);
    if (!isHeld(error)) return error;
    if (std::chrono::steady_clock::now() >= end) return EAGAIN;
    std::this_thread::sleep_for(pause);
    pause = std::min(2 * pause, longestPause);
  }
}

platform::Result<ScopedRangeLock> ScopedRangeLock::take(const Descriptor& file,
                                                        const std::filesystem::path& path,
                                                        ByteRange range,
                                                        std::chrono::milliseconds patience) {
  const int error = awaitLock(file.number(), F_WRLCK, range, patience);
  if (error != 0) return std::unexpected(systemFault(path, error));
  return ScopedRangeLock{file.number(), range};
}

ScopedRangeLock::ScopedRangeLock(ScopedRangeLock&& other) noexcept
    : file_(std::exchange(other.file_, -1)), range_(other.range_) {}

ScopedRangeLock::~ScopedRangeLock() {
  if (file_ >= 0) (void)requestLock(file_, F_UNLCK, range_);
}

}  // namespace files
