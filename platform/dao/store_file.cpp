// Stores as files: making, opening, checking and repairing them.
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/dao/catalogue.h"
#include "platform/dao/database.h"
#include "platform/dao/engine.h"
#include "platform/status/system_fault.h"

namespace dao {
namespace {

std::string nameOf(const std::filesystem::path& path) {
  return path.filename().string();
}

Status creationFault(const std::filesystem::path& path, int error) {
  const std::string name = nameOf(path);
  switch (platform::faultOf(error)) {
    case Fault::Exists:
      return {Fault::Exists, name + ": the file is there already."};
    case Fault::Missing:
      return {Fault::Missing, name + ": there is no such folder."};
    case Fault::ReadOnly:
      return {Fault::ReadOnly, name + ": the folder cannot be written."};
    case Fault::DiskFull:
      return {Fault::DiskFull, name + ": there is no room left on the disk."};
    default:
      return {Fault::Failed, name + ": the file cannot be made."};
  }
}

// Makes an empty file unless there is one: of two stations one succeeds.
Status claim(const std::filesystem::path& path) {
  const int file = ::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0) return creationFault(path, errno);
  ::close(file);
  return {};
}

Status removing(const std::filesystem::path& path, Status fault) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
  return fault;
}

Status initialise(Engine& engine) {
  Status status = engine.begin();
  if (status) status = engine.mark();
  if (status) return engine.commit();
  engine.rollback();
  return status;
}

// The engine's own check; "" when all is sound.
Result<std::string> findings(Engine& engine) {
  const std::string subject = nameOf(engine.path());
  auto statement = engine.prepare("PRAGMA integrity_check", subject);
  if (!statement) return std::unexpected(statement.error());
  std::string lines;
  for (;;) {
    const auto row = statement->step(subject);
    if (!row) return std::unexpected(row.error());
    if (!*row) return lines == "ok\n" ? "" : lines;
    lines.append(statement->text(0)).append("\n");
  }
}

Status damaged(const std::filesystem::path& path, const std::string& lines) {
  return {Fault::Damaged, nameOf(path) + ": the file is damaged.\n" + lines};
}

}  // namespace

Result<Database> OpenDatabase(const std::filesystem::path& path, const OpenOptions& options) {
  auto engine = Engine::open(path, options);
  if (!engine) return std::unexpected(engine.error());
  return Database(std::move(*engine));
}

Result<Database> CreateDatabase(const std::filesystem::path& path, Order order) {
  if (Status status = claim(path); !status) return std::unexpected(std::move(status));
  auto engine = Engine::open(path, {.emptyFileOrder = order});
  if (!engine) return std::unexpected(removing(path, engine.error()));
  if (Status status = initialise(**engine); !status) {
    (*engine)->close();
    return std::unexpected(removing(path, std::move(status)));
  }
  return Database(std::move(*engine));
}

Status ProbeUnused(const std::filesystem::path& path) {
  auto engine = Engine::open(path, {.busyTimeout = std::chrono::milliseconds{0}});
  if (!engine) return engine.error();
  const auto locked = (*engine)->run("BEGIN EXCLUSIVE", nameOf(path));
  return locked ? Status() : locked.error();
}

Status Database::integrityCheck() {
  if (!isOpen()) return {Fault::NoCurrent, "The store is closed."};
  const auto lines = findings(*engine_);
  if (!lines) return lines.error();
  return lines->empty() ? Status() : damaged(engine_->path(), *lines);
}

Result<RepairReport> RepairDatabase(const std::filesystem::path& path) {
  auto opened = Engine::open(path, {});
  if (!opened) return std::unexpected(opened.error());
  Database store(*opened);
  const Status before = store.integrityCheck();
  if (before) return RepairReport{};
  // A remedy that fails leaves the file to the next one, and to the check that has the last word.
  (void)(*opened)->run("REINDEX", nameOf(path));
  if (!store.integrityCheck()) store.rebuildOrder().ignore();
  if (Status after = store.integrityCheck(); !after) return std::unexpected(std::move(after));
  return RepairReport{true, before.text()};
}

}  // namespace dao
