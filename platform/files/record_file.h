// A file of records of one length, numbered from 1, that several stations may have open at once.
// Nothing is cached: every read sees what others have written.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <span>
#include <vector>

#include "platform/files/descriptor.h"
#include "platform/files/range_lock.h"
#include "platform/files/record_buffer.h"
#include "platform/files/replace.h"
#include "platform/status/status.h"

namespace files {

// How much of a record the file holds; what it does not hold reads as zeros.
enum class Extent { Whole, Short, Beyond };

struct Record {
  RecordBuffer buffer;
  Extent extent = Extent::Whole;
};

class RecordFile {
 public:
  // Creates the file when it is missing. A file that cannot be written is opened for reading.
  static platform::Result<RecordFile> open(const std::filesystem::path& path,
                                           std::size_t recordLength);

  [[nodiscard]] platform::Result<Record> get(long number) const;
  // Writes the buffer's bytes; a shorter buffer leaves the rest of the record as it is, a longer
  // one is TooLong. A number beyond the end extends the file with zeros.
  [[nodiscard]] platform::Status put(long number, const RecordBuffer& buffer);
  // All records, read in one piece; the last one may be short. TooLarge when there are more than
  // `most`.
  [[nodiscard]] platform::Result<std::vector<Record>> all(long most) const;
  // A last record that is not whole counts.
  [[nodiscard]] platform::Result<long> count() const;

  // Keeps other handles from locking the same record. Put and get do not ask for it.
  [[nodiscard]] platform::Result<ScopedRangeLock> lock(
      long number, std::chrono::milliseconds patience = lockPatience) const;
  // The same for the whole file.
  [[nodiscard]] platform::Result<ScopedRangeLock> lockAll(
      std::chrono::milliseconds patience = lockPatience) const;

  // Brings what was put to the disk.
  [[nodiscard]] platform::Status flush() const;
  // Whether the path has become another file, or none, since this one was opened.
  [[nodiscard]] bool isReplaced() const { return !isNamed(file_, path_); }

  void shareLike(const std::filesystem::path& model) const { files::shareLike(file_, model); }

  void close() { file_.close(); }

 private:
  RecordFile(Descriptor file, std::filesystem::path path, std::size_t recordLength, bool writable);
  [[nodiscard]] platform::Result<off_t> offsetOf(long number) const;
  [[nodiscard]] platform::Result<std::size_t> readAt(off_t offset, std::span<char> bytes) const;

  Descriptor file_;
  std::filesystem::path path_;
  std::size_t recordLength_;
  bool writable_;
};

}  // namespace files
