// A short exclusive lock on a part of a file that several stations have open: taken before a
// read-modify-write, given back when the object goes.
//
// The lock is advisory and belongs to the handle: it works between two handles of one process as
// between processes, but not between two users of one handle. It never hinders plain reading.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>

#include "platform/files/descriptor.h"
#include "platform/status/status.h"

namespace files {

struct ByteRange {
  std::int64_t offset = 0;
  std::int64_t length = 1;
};

constexpr std::chrono::milliseconds lockPatience{5000};

class ScopedRangeLock {
 public:
  // Waits for other holders; Busy when `patience` is over, ReadOnly when the handle only reads.
  // The file must stay open for the life of the lock; `path` is for the text of a fault.
  static platform::Result<ScopedRangeLock> take(const Descriptor& file,
                                                const std::filesystem::path& path, ByteRange range,
                                                std::chrono::milliseconds patience = lockPatience);

  ScopedRangeLock(ScopedRangeLock&& other) noexcept;
  ScopedRangeLock& operator=(ScopedRangeLock&&) = delete;
  ~ScopedRangeLock();

 private:
  ScopedRangeLock(int file, ByteRange range) : file_(file), range_(range) {}

  int file_;
  ByteRange range_;
};

// One step below: asks for a lock of the kind F_RDLCK, F_WRLCK or F_UNLCK once; answers an errno
// value or 0.
[[nodiscard]] int requestLock(int file, short kind, ByteRange range);
// Asks again until it works, fails for another reason than a holder, or the patience is over.
[[nodiscard]] int awaitLock(int file, short kind, ByteRange range,
                            std::chrono::milliseconds patience);

}  // namespace files
