// A file that is written beside a store and takes its place when it is whole.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/dao/database.h"
#include "platform/files/process_lock.h"

namespace stores {

class StoreDraft {
 public:
  // Makes room for a draft of `target`; what a crash left of an older one goes. Missing, ReadOnly
  // and DiskFull speak of the folder. Busy when another draft of the same file is being written,
  // here or at another station. A link is NotAFile, or is followed to a store of this program and
  // to nothing else.
  [[nodiscard]] static dao::Result<StoreDraft> take(const std::filesystem::path& target,
                                                    files::Links links = files::Links::Refused);

  StoreDraft(StoreDraft&& other) noexcept = default;
  StoreDraft& operator=(StoreDraft&&) = delete;
  // A draft that was not installed goes.
  ~StoreDraft();

  // Where to write. The name is free.
  [[nodiscard]] std::filesystem::path path() const;
  [[nodiscard]] const std::filesystem::path& target() const { return target_; }

  // Gives the draft, which is on the disk and closed, the place of the target.
  [[nodiscard]] dao::Status install();

 private:
  StoreDraft(files::ProcessLock turn, std::filesystem::path target)
      : turn_(std::move(turn)), target_(std::move(target)) {}

  void remove();

  std::optional<files::ProcessLock> turn_;  // vanishes with a crashed process
  std::filesystem::path target_;
};

}  // namespace stores
