#include "stores/backup.h"

#include <algorithm>
#include <vector>

#include "platform/files/copy_file.h"
#include "platform/files/folders.h"
#include "stores/contents.h"
#include "stores/store_copy.h"
#include "stores/store_file.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

struct Part {
  const StoreKind& kind;
  std::int64_t bytes = 0;
};

// Only a clinic for smokers has the third store.
std::vector<Part> partsOf(const fs::path& programFolder, std::span<const StoreKind> kinds) {
  std::vector<Part> parts;
  for (const StoreKind& kind : kinds) {
    const auto state = stateOf(dataFile(programFolder, kind));
    if (!state && kind.file == smokingKind.file) continue;
    parts.push_back({kind, state ? static_cast<std::int64_t>(state->bytes) : 0});
  }
  return parts;
}

// The share of one store in the progress of all.
Progress shareOf(const Progress& whole, std::int64_t before, const Part& part, std::int64_t all) {
  if (!whole) return {};
  return [&whole, before, &part, all](std::int64_t done, std::int64_t total) {
    const double share =
        static_cast<double>(done) / static_cast<double>(std::max<std::int64_t>(total, 1));
    return whole(before + static_cast<std::int64_t>(share * static_cast<double>(part.bytes)), all);
  };
}

dao::Result<std::vector<StoreDraft>> draftAll(const fs::path& programFolder, const fs::path& into,
                                              const std::vector<Part>& parts,
                                              const Progress& progress, dao::Others others) {
  std::int64_t all = 0;
  for (const Part& part : parts) all += part.bytes;
  std::vector<StoreDraft> drafts;
  std::int64_t before = 0;
  for (const Part& part : parts) {
    const fs::path store = dataFile(programFolder, part.kind);
    // No start opens this one, and keys in the order of older rules would count as damage.
    if (part.kind.file == smokingKind.file) (void)openStoreFile(store.string());
    auto draft =
        draftCopy(store, into / part.kind.file, shareOf(progress, before, part, all), others);
    if (!draft) return std::unexpected(draft.error());
    drafts.push_back(std::move(*draft));
    before += part.bytes;
  }
  return drafts;
}

Contents contentsOf(const std::vector<StoreDraft>& drafts) {
  Contents contents;
  for (const StoreKind& kind : storeKinds) {
    const auto draft = std::ranges::find(drafts, kind.file, [](const StoreDraft& each) {
      return each.target().filename().string();
    });
    if (draft == drafts.end()) continue;
    auto store = dao::OpenDatabase(draft->path(), {.access = dao::Access::Still});
    if (!store) continue;
    if (const auto count = countRecords(*store, kind))
      contents.insert_or_assign(std::string(kind.file), *count);
  }
  return contents;
}

dao::Status keepFile(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  if (!fs::is_regular_file(fs::symlink_status(from, ignored))) return {};
  return files::keepAs(from, to);
}

std::vector<std::string> filesOfBackup() {
  std::vector<std::string> names{contentsNote};
  for (const StoreKind& kind : storeKinds) names.emplace_back(kind.file);
  return names;
}

// What else lies in the folder is somebody's own, and keeps the folder.
void removeBackup(const fs::path& folder) {
  std::error_code error;
  if (fs::is_symlink(fs::symlink_status(folder, error))) return;
  for (const std::string& name : filesOfBackup()) fs::remove(folder / name, error);
  fs::remove(folder, error);
}

constexpr auto freshBackup = "Backup 0";
constexpr auto oldestBackup = "Backup 3";

dao::Status moveFolder(const fs::path& from, const fs::path& to) {
  std::error_code error;
  if (!fs::exists(fs::symlink_status(from, error))) return {};
  fs::rename(from, to, error);
  return error ? files::systemFault(to, error.value()) : dao::Status();
}

// Before a new backup takes its place. A kill at any step leaves no fewer whole backups than there
// were: folders move as a whole, and the oldest goes only when the new one is complete.
dao::Status keepOlder(const fs::path& into) {
  removeBackup(into / oldestBackup);
  const bool whole = stateOf(into / personalKind.file) && stateOf(into / clinicalKind.file);
  if (!whole) return {};
  const fs::path fresh = into / freshBackup;
  removeBackup(fresh);
  dao::Status status = files::createFolders(fresh);
  for (const std::string& name : filesOfBackup()) {
    if (status) status = keepFile(into / name, fresh / name);
  }
  if (status) status = moveFolder(into / olderBackups[1], into / oldestBackup);
  if (status) status = moveFolder(into / olderBackups[0], into / olderBackups[1]);
  return status ? moveFolder(fresh, into / olderBackups[0]) : status;
}

}  // namespace

bool isDataFolder(const fs::path& programFolder, const fs::path& folder) {
  std::error_code ignored;
  const fs::path data = programFolder / "Data";
  return fs::equivalent(data, folder, ignored) ||
         fs::weakly_canonical(data, ignored) == fs::weakly_canonical(folder, ignored);
}

dao::Status backUp(const fs::path& programFolder, const fs::path& into,
                   std::span<const StoreKind> kinds, const Progress& progress, dao::Others others) {
  if (isDataFolder(programFolder, into))
    return {dao::Fault::Unsupported, into.string() + ": these are the stores themselves."};
  auto drafts = draftAll(programFolder, into, partsOf(programFolder, kinds), progress, others);
  if (!drafts) return drafts.error();
  const Contents contents = contentsOf(*drafts);
  if (dao::Status kept = keepOlder(into); !kept) return kept;
  // The note of the old stores must not stand beside the new ones.
  std::error_code ignored;
  fs::remove(into / contentsNote, ignored);
  for (StoreDraft& draft : *drafts) {
    if (dao::Status installed = draft.install(); !installed) return installed;
  }
  noteContents(into, contents).ignore();
  removeBackup(into / oldestBackup);
  return {};
}

std::vector<FewerRecords> fewerThanBackup(const fs::path& programFolder, const fs::path& backup,
                                          std::span<const StoreKind> kinds) {
  const Contents before = contentsOf(backup);
  std::vector<FewerRecords> fewer;
  for (const StoreKind& kind : kinds) {
    const auto held = before.find(kind.file);
    if (held == before.end() || held->second == 0) continue;
    auto store =
        dao::OpenDatabase(dataFile(programFolder, kind), {.access = dao::Access::ReadOnly});
    const std::int64_t now = store ? countRecords(*store, kind).value_or(0) : 0;
    if (clearlyFewer(now, held->second)) fewer.push_back({held->first, now, held->second});
  }
  return fewer;
}

}  // namespace stores
