#include "platform/dao/snapshot.h"

#include <sqlite3.h>

#include <limits>
#include <utility>

namespace dao {
namespace {

// A megabyte: what a save waits for.
constexpr int kPagesOfAStep = 256;
constexpr int kMostRestarts = 3;

class Snapshot {
 public:
  Snapshot(Engine& source, Engine& copy)
      : source_(source),
        copy_(copy),
        backup_(sqlite3_backup_init(copy.handle(), "main", source.handle(), "main")) {}
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;
  ~Snapshot() {
    sqlite3_backup_finish(backup_);
    if (held_) (void)source_.run("COMMIT", subject_);
  }

  Status take(const SnapshotProgress& progress);

 private:
  Status failure();
  void countRestart();
  Status hold();

  Engine& source_;
  Engine& copy_;
  const std::string subject_ = source_.path().filename().string();
  sqlite3_backup* backup_;
  int left_ = std::numeric_limits<int>::max();
  int restarts_ = 0;
  bool held_ = false;
};

Status Snapshot::take(const SnapshotProgress& progress) {
  if (backup_ == nullptr) return copy_.fault(subject_);
  for (;;) {
    const int code = sqlite3_backup_step(backup_, kPagesOfAStep);
    if (code == SQLITE_DONE) return {};
    if (code == SQLITE_BUSY || code == SQLITE_LOCKED)
      return {Fault::Busy, subject_ + ": another station keeps the file."};
    if (code != SQLITE_OK) return failure();
    countRestart();
    const int pages = sqlite3_backup_pagecount(backup_);
    if (!progress(pages - left_, pages)) return {Fault::Other, subject_};
    if (restarts_ < kMostRestarts || held_) continue;
    if (Status held = hold(); !held) return held;
  }
}

// The end of the copying tells the connection what went wrong in the middle.
Status Snapshot::failure() {
  sqlite3_backup_finish(std::exchange(backup_, nullptr));
  return copy_.fault(subject_);
}

// Steps leave less and less to do, unless they had to begin anew.
void Snapshot::countRestart() {
  const int left = sqlite3_backup_remaining(backup_);
  if (left > left_) ++restarts_;
  left_ = left;
}

// From the first row read until the end of the transaction nobody can commit.
Status Snapshot::hold() {
  for (const char* const sql : {"BEGIN", "SELECT count(*) FROM sqlite_schema"}) {
    if (const auto done = source_.run(sql, subject_); !done) return done.error();
    held_ = true;
  }
  return {};
}

}  // namespace

Result<std::shared_ptr<Engine>> takeSnapshot(Engine& source, const SnapshotProgress& progress) {
  auto copy = Engine::scratch(source);
  if (!copy) return copy;
  const Status taken = Snapshot(source, **copy).take(progress);
  if (!taken) return std::unexpected(taken);
  return copy;
}

}  // namespace dao
