// "Is anybody else here": a lock on a file that a station holds as long as it runs, and that
// vanishes with a crashed process. Works between two handles of one process as between processes.
#pragma once

#include <chrono>
#include <filesystem>

#include "platform/files/descriptor.h"
#include "platform/files/range_lock.h"
#include "platform/status/status.h"

namespace files {

class ProcessLock {
 public:
  // Opens the file, creating it when missing, and holds nothing yet.
  static platform::Result<ProcessLock> open(const std::filesystem::path& path);

  // Whether no other handle holds the file; if so, nobody else gets it until share() or release().
  // With others here, what was held before stays held. Of several that start at once, at most one
  // is alone. Unsupported where the file system knows no locks.
  [[nodiscard]] platform::Result<bool> tryAlone();

  // Holds the file together with others; from being alone, lets them in. Busy when another stays
  // alone with it for longer than `patience`.
  [[nodiscard]] platform::Status share(std::chrono::milliseconds patience = lockPatience);

  void release();

  // For whoever is alone with the file: takes out what a crashed station left in it, or gives the
  // file up. Another file that has taken the name stays as it is.
  [[nodiscard]] platform::Status empty() { return emptyFile(file_, path_); }
  void removeFile() { removeNamed(file_, path_); }

 private:
  ProcessLock(Descriptor file, std::filesystem::path path);
  [[nodiscard]] platform::Status lock(short kind, std::chrono::milliseconds patience);

  Descriptor file_;
  std::filesystem::path path_;
};

}  // namespace files
