// A compact copy of a store, checked before it counts.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <functional>
#include <map>

#include "platform/dao/database.h"
#include "platform/dao/engine.h"
#include "platform/dao/snapshot.h"
#include "platform/dao/store_files.h"
#include "platform/status/system_fault.h"

namespace dao {
namespace {

namespace fs = std::filesystem;

using RowCounts = std::map<std::string, std::int64_t>;  // by table

// A copy is worth waiting for: stations that save without a pause on a slow disk leave few gaps.
constexpr std::chrono::seconds sourcePatience{30};

std::string nameOf(const fs::path& path) {
  return path.filename().string();
}

Result<std::int64_t> number(Engine& engine, const std::string& sql) {
  const std::string subject = nameOf(engine.path());
  auto statement = engine.prepare(sql, subject);
  if (!statement) return std::unexpected(statement.error());
  const auto row = statement->step(subject);
  if (!row) return std::unexpected(row.error());
  return *row ? statement->integer(0) : 0;
}

// With the engine's own tables: the numbers given so far are a part of a store too.
Result<std::vector<std::string>> everyTable(Engine& engine) {
  const std::string subject = nameOf(engine.path());
  auto statement =
      engine.prepare("SELECT name FROM sqlite_schema WHERE type='table' AND rootpage > 0", subject);
  if (!statement) return std::unexpected(statement.error());
  std::vector<std::string> names;
  for (;;) {
    const auto row = statement->step(subject);
    if (!row) return std::unexpected(row.error());
    if (!*row) return names;
    names.emplace_back(statement->text(0));
  }
}

Result<RowCounts> rowCounts(Engine& engine) {
  const auto tables = everyTable(engine);
  if (!tables) return std::unexpected(tables.error());
  RowCounts counts;
  for (const std::string& table : *tables) {
    const auto count = number(engine, "SELECT count(*) FROM " + sqlName(table));
    if (!count) return std::unexpected(count.error());
    counts[table] = *count;
  }
  return counts;
}

Status flushed(const fs::path& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
  const bool done = file >= 0 && ::fsync(file) == 0;
  if (file >= 0) ::close(file);
  return done
             ? Status()
             : Status(Fault::Failed, nameOf(path) + ": the file could not be brought to the disk.");
}

Status makeEmpty(const fs::path& path) {
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
  if (file < 0) return {platform::faultOf(errno), nameOf(path) + ": the file cannot be made."};
  ::close(file);
  allowFolder(path.parent_path());
  return {};
}

class Compaction {
 public:
  Compaction(const fs::path& from, const fs::path& to, const Progress& progress)
      : from_(from), to_(to), progress_(progress) {}

  Status run(Others others);

 private:
  Status measure(Engine& source);
  Result<std::shared_ptr<Engine>> still(const std::shared_ptr<Engine>& source);
  Status keepLocked(Engine& source);
  Result<RowCounts> write(Engine& source);
  Status check(const RowCounts& expected);
  Status checkTable(Engine& copy, const std::string& table, std::int64_t rows);
  [[nodiscard]] bool tell(std::int64_t done);
  [[nodiscard]] bool tellWritten();
  // A copy that is not sound tells of a source that is not.
  [[nodiscard]] Status sourceDamaged(const std::string& table) const;
  [[nodiscard]] Status orStopped(const Status& fault) const;

  const fs::path& from_;
  const fs::path& to_;
  const Progress& progress_;
  // Asked by the engine in the middle of its statements.
  const std::function<bool()> written_ = [this] { return tellWritten(); };
  const std::function<bool()> checked_ = [this] { return tell(done_); };
  std::int64_t size_ = 1;    // expected bytes; writing and checking count alike
  std::int64_t taking_ = 0;  // as much, when a snapshot is taken before
  std::int64_t done_ = 0;
  bool stopped_ = false;
};

bool Compaction::tell(std::int64_t done) {
  done_ = done;
  stopped_ = stopped_ || (progress_ && !progress_(done, taking_ + 2 * size_));
  return !stopped_;
}

bool Compaction::tellWritten() {
  std::error_code notYetThere;
  const auto bytes = fs::file_size(to_, notYetThere);
  return tell(taking_ + (notYetThere ? 0 : std::min(static_cast<std::int64_t>(bytes), size_)));
}

Status Compaction::orStopped(const Status& fault) const {
  return stopped_ ? Status(Fault::Other, nameOf(from_) + ": the work was stopped.") : fault;
}

Status Compaction::sourceDamaged(const std::string& table) const {
  return {Fault::Damaged, nameOf(from_) + ", table " + table + ": the file is damaged."};
}

Status Compaction::run(Others others) {
  auto source = Engine::open(from_, {.busyTimeout = sourcePatience});
  if (!source) return source.error();
  if (Status measured = measure(**source); !measured) return measured;
  taking_ = others == Others::GoOn ? size_ : 0;
  auto from = still(*source);
  if (!from) return orStopped(from.error());
  const auto counts = write(**from);
  (*from)->close();
  (*source)->close();
  if (!counts) return orStopped(counts.error());
  if (Status safe = flushed(to_); !safe) return safe;
  return orStopped(check(*counts));
}

Status Compaction::measure(Engine& source) {
  const auto pages = number(source, "PRAGMA page_count");
  const auto spare = number(source, "PRAGMA freelist_count");
  const auto width = number(source, "PRAGMA page_size");
  for (const auto* each : {&pages, &spare, &width}) {
    if (!*each) return each->error();
  }
  size_ = std::max<std::int64_t>(1, (*pages - *spare) * *width);
  return {};
}

// What nobody changes while it is copied and counted: a snapshot, or the store itself.
Result<std::shared_ptr<Engine>> Compaction::still(const std::shared_ptr<Engine>& source) {
  if (taking_ > 0) {
    auto snapshot = takeSnapshot(*source, [this](std::int64_t done, std::int64_t total) {
      return tell(taking_ * done / std::max<std::int64_t>(1, total));
    });
    if (snapshot || stopped_ || snapshot.error().fault() == Fault::Busy) return snapshot;
  }
  if (Status kept = keepLocked(*source); !kept) return std::unexpected(std::move(kept));
  return source;
}

// The connection keeps its lock between its statements until it is closed: nobody can commit
// between the copying, which refuses to be a part of a transaction, and the counting.
Status Compaction::keepLocked(Engine& source) {
  const auto kept = source.run("PRAGMA main.locking_mode=EXCLUSIVE", nameOf(from_));
  return kept ? Status() : kept.error();
}

Result<RowCounts> Compaction::write(Engine& source) {
  // The engine would make the file for everybody to read.
  if (Status made = makeEmpty(to_); !made) return std::unexpected(std::move(made));
  source.whileRunning(written_);
  const auto done = source.run("VACUUM INTO ?", nameOf(from_), {to_.string()});
  if (!done) return std::unexpected(done.error());
  return rowCounts(source);
}

Status Compaction::check(const RowCounts& expected) {
  auto copy = Engine::open(to_, {.access = Access::ReadOnly});
  if (!copy) return copy.error();
  (*copy)->whileRunning(checked_);
  std::int64_t all = 1;
  for (const auto& [table, rows] : expected) all += rows;
  std::int64_t rowsDone = 0;
  for (const auto& [table, rows] : expected) {
    if (!tell(taking_ + size_ + size_ * rowsDone / all)) return orStopped({});
    if (Status sound = checkTable(**copy, table, rows); !sound) return sound;
    rowsDone += rows;
  }
  return tell(taking_ + 2 * size_) ? Status() : orStopped({});
}

Status Compaction::checkTable(Engine& copy, const std::string& table, std::int64_t rows) {
  const std::string name = sqlName(table);
  const auto count = number(copy, "SELECT count(*) FROM " + name);
  if (!count) return count.error();
  if (*count != rows) return sourceDamaged(table);
  auto findings = copy.prepare("PRAGMA integrity_check(" + name + ")", nameOf(from_));
  if (!findings) return findings.error();
  const auto first = findings->step(nameOf(from_));
  if (!first) return first.error();
  return *first && findings->text(0) == "ok" ? Status() : sourceDamaged(table);
}

Status refusal(const fs::path& to) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(to, ignored)))
    return {Fault::Exists, nameOf(to) + ": the file is there already."};
  const fs::path folder = to.has_parent_path() ? to.parent_path() : fs::path(".");
  if (!fs::is_directory(folder, ignored))
    return {Fault::Missing, folder.string() + ": there is no such folder."};
  return {};
}

}  // namespace

Status CompactDatabase(const fs::path& from, const fs::path& to, const Progress& progress,
                       Others others) {
  if (Status refused = refusal(to); !refused) return refused;
  Status status = Compaction(from, to, progress).run(others);
  std::error_code ignored;
  if (!status) fs::remove(to, ignored);
  return status;
}

}  // namespace dao
