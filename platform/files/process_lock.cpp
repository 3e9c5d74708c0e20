#include "platform/files/process_lock.h"

#include <fcntl.h>

#include <utility>

namespace files {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;

// Behind the bytes that stand for records, so that a record lock never looks like a station.
constexpr ByteRange stationByte{std::int64_t{1} << 41, 1};

Result<Descriptor> openOrCreate(const std::filesystem::path& path) {
  return Descriptor::openFile(path, O_RDWR | O_CREAT);
}

}  // namespace

Result<ProcessLock> ProcessLock::open(const std::filesystem::path& path) {
  auto file = openOrCreate(path);
  if (!file) return std::unexpected(file.error());
  return ProcessLock{std::move(*file), path};
}

ProcessLock::ProcessLock(Descriptor file, std::filesystem::path path)
    : file_(std::move(file)), path_(std::move(path)) {}

Result<bool> ProcessLock::tryAlone() {
  const Status status = lock(F_WRLCK, std::chrono::milliseconds{0});
  if (status) return true;
  if (status.fault() == Fault::Busy) return false;
  return std::unexpected(status);
}

Status ProcessLock::share(std::chrono::milliseconds patience) {
  return lock(F_RDLCK, patience);
}

void ProcessLock::release() {
  (void)requestLock(file_.number(), F_UNLCK, stationByte);
}

Status ProcessLock::lock(short kind, std::chrono::milliseconds patience) {
  for (;;) {
    const int error = awaitLock(file_.number(), kind, stationByte, patience);
    if (error != 0) return systemFault(path_, error);
    // The last station may delete the file between our opening and locking it; a lock on a file
    // without a name would keep nobody out.
    if (isNamed(file_, path_)) return {};
    auto file = openOrCreate(path_);
    if (!file) return file.error();
    file_ = std::move(*file);
  }
}

}  // namespace files
