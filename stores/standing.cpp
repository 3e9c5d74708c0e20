#include "stores/standing.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "platform/files/descriptor.h"
#include "platform/files/replace.h"
#include "platform/text/fold.h"
#include "stores/backup.h"
#include "stores/contents.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

bool hasMainTable(const dao::Database& store, const StoreKind& kind) {
  const auto tables = store.tables();
  return tables && std::ranges::any_of(*tables, [&](const std::string& table) {
           return text::equalsNoCase(table, kind.mainTable);
         });
}

// Counting costs a walk: a store that is about as large as its backup is not counted, but for the
// patients, whose index is small.
bool mayBeFewer(const dao::Database& store, const StoreKind& kind, std::uintmax_t backupBytes) {
  return kind.file == personalKind.file ||
         static_cast<std::uintmax_t>(store.usedBytes()) < backupBytes / 2;
}

// A store that is locked is good: it is looked at when it can be opened.
Standing look(const fs::path& file, const StoreKind& kind) {
  if (!isThere(file)) return Standing::Missing;
  auto store = dao::OpenDatabase(file, {.access = dao::Access::ReadOnly});
  using enum dao::Fault;
  const dao::Fault fault = store ? None : store.error().fault();
  if (fault == Unsupported || (fault == Damaged && sizeOf(file) == 0)) return Standing::Useless;
  if (fault == Damaged) return Standing::Damaged;
  return !store || hasMainTable(*store, kind) ? Standing::Good : Standing::Useless;
}

std::int64_t rowsOf(const fs::path& file, const StoreKind& kind) {
  auto store = dao::OpenDatabase(file, {.access = dao::Access::ReadOnly});
  return store ? countRecords(*store, kind).value_or(0) : 0;
}

// The newest of those that hold about as much as the fullest.
void findBackup(Finding& finding, std::span<const fs::path> backups) {
  const auto unnoted = finding.standing == Standing::Good ? Unnoted::LeftOut : Unnoted::Counted;
  struct Candidate {
    fs::path folder;
    std::int64_t rows;
    FileState state;
  };
  std::vector<Candidate> candidates;
  std::int64_t most = 0;
  for (const fs::path& folder : backups) {
    const auto state = stateOf(folder / finding.kind.file);
    const Contents contents = state ? contentsOf(folder, unnoted) : Contents();
    const auto held = contents.find(finding.kind.file);
    if (held == contents.end() || held->second == 0) continue;
    candidates.push_back({folder, held->second, *state});
    most = std::max(most, held->second);
  }
  std::erase_if(candidates, [&](const Candidate& each) { return clearlyFewer(each.rows, most); });
  const auto newest = std::ranges::max_element(
      candidates, {}, [](const Candidate& each) { return each.state.written; });
  if (newest == candidates.end()) return;
  finding.backup = newest->folder;
  finding.backupRows = newest->rows;
  finding.backupState = newest->state;
}

bool othersHoldRows(const fs::path& programFolder, const StoreKind& kind) {
  return std::ranges::any_of(std::array{personalKind, clinicalKind}, [&](const StoreKind& other) {
    return other.file != kind.file && rowsOf(dataFile(programFolder, other), other) > 0;
  });
}

Standing compared(const fs::path& file, Finding& finding) {
  if (finding.backup.empty()) return Standing::Good;
  auto store = dao::OpenDatabase(file, {.access = dao::Access::ReadOnly});
  if (!store || !mayBeFewer(*store, finding.kind, finding.backupState->bytes))
    return Standing::Good;
  const auto rows = countRecords(*store, finding.kind);
  finding.rows = rows.value_or(0);
  const bool fewer = rows && clearlyFewer(*rows, finding.backupRows);
  return fewer ? Standing::Fewer : Standing::Good;
}

}  // namespace

Finding findStore(const fs::path& programFolder, const StoreKind& kind,
                  std::span<const fs::path> backups) {
  const fs::path file = dataFile(programFolder, kind);
  Finding finding;
  finding.kind = kind;
  finding.standing = look(file, kind);
  findBackup(finding, backups);
  if (finding.standing == Standing::Good) {
    finding.standing = compared(file, finding);
  } else if (finding.backup.empty() && finding.standing != Standing::Damaged &&
             !othersHoldRows(programFolder, kind)) {
    finding.standing = Standing::Good;
  }
  return finding;
}

std::vector<fs::path> withOlder(const fs::path& backup) {
  std::vector<fs::path> folders{backup};
  for (const char* older : olderBackups) folders.push_back(backup / older);
  return folders;
}

dao::Result<std::string> moveAside(const fs::path& programFolder, const StoreKind& kind,
                                   std::string_view stamp) {
  const fs::path store = dataFile(programFolder, kind);
  std::string name = std::string(kind.file) + "." + std::string(stamp) + ".kept";
  for (int more = 2; isThere(store.parent_path() / name); ++more)
    name = std::string(kind.file) + "." + std::string(stamp) + "." + std::to_string(more) + ".kept";
  std::error_code error;
  fs::rename(store, store.parent_path() / name, error);
  if (error) return std::unexpected(files::systemFault(store, error.value()));
  // What was not finished in the old file is nothing for a new one.
  const fs::path journal = store.parent_path() / (std::string(kind.file) + "-journal");
  if (isThere(journal)) fs::rename(journal, store.parent_path() / (name + "-journal"), error);
  files::flushFolder(store.parent_path());
  return name;
}

}  // namespace stores
