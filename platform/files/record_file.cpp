#include "platform/files/record_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>
#include <string>
#include <utility>

namespace files {

using platform::Fault;
using platform::Result;
using platform::Status;

Result<RecordFile> RecordFile::open(const std::filesystem::path& path, std::size_t recordLength) {
  auto file = Descriptor::openFile(path, O_RDWR | O_CREAT);
  if (file) return RecordFile{std::move(*file), path, recordLength, true};
  if (file.error().fault() != Fault::ReadOnly) return std::unexpected(file.error());
  auto reading = Descriptor::openFile(path, O_RDONLY);
  if (!reading) return std::unexpected(file.error());
  return RecordFile{std::move(*reading), path, recordLength, false};
}

RecordFile::RecordFile(Descriptor file, std::filesystem::path path, std::size_t recordLength,
                       bool writable)
    : file_(std::move(file)),
      path_(std::move(path)),
      recordLength_(recordLength),
      writable_(writable) {}

Result<off_t> RecordFile::offsetOf(long number) const {
  const auto length = static_cast<off_t>(recordLength_);
  if (number < 1 || number >= std::numeric_limits<off_t>::max() / length) {
    const std::string text = path_.string() + ": no record " + std::to_string(number);
    return std::unexpected(Status{Fault::Missing, text});
  }
  return (number - 1) * length;
}

// As much as the file has of them; how much that was.
Result<std::size_t> RecordFile::readAt(off_t offset, std::span<char> bytes) const {
  std::size_t held = 0;
  while (held < bytes.size()) {
    const ssize_t got = ::pread(file_.number(), bytes.data() + held, bytes.size() - held,
                                offset + static_cast<off_t>(held));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return std::unexpected(systemFault(path_, errno));
    if (got == 0) break;
    held += static_cast<std::size_t>(got);
  }
  return held;
}

Result<Record> RecordFile::get(long number) const {
  const auto offset = offsetOf(number);
  if (!offset) return std::unexpected(offset.error());
  Record record{RecordBuffer{recordLength_}};
  const auto held = readAt(*offset, {record.buffer.data(), recordLength_});
  if (!held) return std::unexpected(held.error());
  if (*held < recordLength_) record.extent = *held == 0 ? Extent::Beyond : Extent::Short;
  return record;
}

// The file may have become shorter since its records were counted.
Result<std::vector<Record>> RecordFile::all(long most) const {
  const auto counted = count();
  if (!counted) return std::unexpected(counted.error());
  if (*counted > most)
    return std::unexpected(Status{Fault::TooLarge, path_.string() + ": the file is too large."});
  std::string bytes(static_cast<std::size_t>(*counted) * recordLength_, '\0');
  const auto held = readAt(0, bytes);
  if (!held) return std::unexpected(held.error());
  std::vector<Record> records;
  for (std::size_t start = 0; start < *held; start += recordLength_) {
    const Extent extent = *held - start < recordLength_ ? Extent::Short : Extent::Whole;
    records.push_back({RecordBuffer{bytes.substr(start, recordLength_)}, extent});
  }
  return records;
}

Status RecordFile::put(long number, const RecordBuffer& buffer) {
  if (!writable_) return systemFault(path_, EROFS);
  if (buffer.size() > recordLength_) {
    return {Fault::TooLong, path_.string() + ": record " + std::to_string(number)};
  }
  const auto offset = offsetOf(number);
  if (!offset) return offset.error();
  std::size_t done = 0;
  while (done < buffer.size()) {
    const ssize_t put = ::pwrite(file_.number(), buffer.bytes().data() + done, buffer.size() - done,
                                 *offset + static_cast<off_t>(done));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return systemFault(path_, errno);
    done += static_cast<std::size_t>(put);
  }
  return {};
}

Status RecordFile::flush() const {
  return ::fsync(file_.number()) == 0 ? Status{} : systemFault(path_, errno);
}

Result<long> RecordFile::count() const {
  struct stat state = {};
  if (::fstat(file_.number(), &state) != 0) return std::unexpected(systemFault(path_, errno));
  const auto length = static_cast<off_t>(recordLength_);
  return (state.st_size + length - 1) / length;
}

Result<ScopedRangeLock> RecordFile::lock(long number, std::chrono::milliseconds patience) const {
  const auto offset = offsetOf(number);
  if (!offset) return std::unexpected(offset.error());
  const ByteRange record{*offset, static_cast<std::int64_t>(recordLength_)};
  return ScopedRangeLock::take(file_, path_, record, patience);
}

Result<ScopedRangeLock> RecordFile::lockAll(std::chrono::milliseconds patience) const {
  constexpr std::int64_t everything = std::int64_t{1} << 40;
  return ScopedRangeLock::take(file_, path_, {0, everything}, patience);
}

}  // namespace files
