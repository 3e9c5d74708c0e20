#include "stores/store_copy.h"

#include <optional>
#include <string>

#include "platform/files/process_lock.h"
#include "platform/files/replace.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

fs::path beside(const fs::path& target, const char* ending) {
  fs::path name = target;
  return name += ending;
}

void removeQuietly(const fs::path& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

std::uintmax_t sizeOf(const fs::path& path) {
  std::error_code missing;
  const auto size = fs::file_size(path, missing);
  return missing ? 0 : size;
}

// Two copies into one file would write one draft. The lock vanishes with a crashed process.
class Turn {
 public:
  static dao::Result<Turn> take(const fs::path& target);
  Turn(Turn&& other) noexcept = default;
  Turn& operator=(Turn&&) = delete;
  ~Turn() {
    if (lock_) removeQuietly(name_);
  }

 private:
  Turn(files::ProcessLock lock, fs::path name) : lock_(std::move(lock)), name_(std::move(name)) {}

  std::optional<files::ProcessLock> lock_;
  fs::path name_;
};

dao::Result<Turn> Turn::take(const fs::path& target) {
  const fs::path name = beside(target, ".lock");
  auto lock = files::ProcessLock::open(name);
  if (!lock) return std::unexpected(lock.error());
  const auto alone = lock->tryAlone();
  // A file system without locks is still good for a copy.
  if (!alone && alone.error().fault() != dao::Fault::Unsupported)
    return std::unexpected(alone.error());
  if (alone && !*alone)
    return std::unexpected(dao::Status(
        dao::Fault::Busy, target.filename().string() + ": another copy is being written."));
  return Turn(std::move(*lock), name);
}

// A journal of the old file, left by a crash, would be played into the new one. Opening the old
// file plays it where it belongs.
void settleJournal(const fs::path& target) {
  const fs::path journal = beside(target, "-journal");
  if (sizeOf(journal) == 0) return;
  (void)dao::OpenDatabase(target);
  if (sizeOf(journal) != 0) removeQuietly(journal);
}

// The copy of a store is for the eyes of those who may read the store.
void keepPermissions(const fs::path& from, const fs::path& draft) {
  std::error_code ignored;
  const auto status = fs::status(from, ignored);
  if (fs::exists(status)) fs::permissions(draft, status.permissions(), ignored);
}

}  // namespace

dao::Status copyStore(const fs::path& from, const fs::path& to, const Progress& progress) {
  const fs::path target = files::behindLinks(to);
  const auto turn = Turn::take(target);
  if (!turn) return turn.error();
  const fs::path draft = beside(target, ".new");
  removeQuietly(draft);
  dao::Status status = dao::CompactDatabase(from, draft, progress);
  if (!status) return status;
  keepPermissions(from, draft);
  settleJournal(target);
  status = files::replaceFile(draft, target);
  if (!status) removeQuietly(draft);
  return status;
}

}  // namespace stores
