#include "stores/restore.h"

#include <string>

#include "platform/files/copy_file.h"
#include "platform/files/replace.h"
#include "stores/store_draft.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

// A store that is missing is shared as its neighbours are; of these, the last one that is there
// counts.
void shareLikeOthers(const fs::path& draft, const fs::path& programFolder,
                     const fs::path& backupFolder) {
  for (const fs::path& folder : {backupFolder, programFolder / "Data"}) {
    for (const StoreKind& kind : {clinicalKind, personalKind})
      files::shareLike(draft, folder / kind.file);
  }
}

dao::Result<ReplacedStore> replace(StoreDraft& draft, std::string_view stamp) {
  ReplacedStore replaced{draft.target(), {}};
  if (stateOf(replaced.store)) {
    replaced.kept = replaced.store;
    replaced.kept += "." + std::string(stamp) + ".old";
    std::error_code ignored;
    fs::remove(replaced.kept, ignored);
    if (dao::Status kept = files::keepAs(replaced.store, replaced.kept); !kept)
      return std::unexpected(std::move(kept));
  }
  if (dao::Status installed = draft.install(); !installed) {
    forget(replaced);
    return std::unexpected(std::move(installed));
  }
  return replaced;
}

}  // namespace

dao::Result<ReplacedStore> restoreStore(const StoreKind& kind, const fs::path& programFolder,
                                        const fs::path& backupFolder, std::string_view stamp,
                                        const Progress& progress) {
  const fs::path backup = backupFolder / kind.file;
  if (const auto opened = dao::OpenDatabase(backup, {.access = dao::Access::Still}); !opened)
    return std::unexpected(opened.error());
  auto draft = StoreDraft::take(dataFile(programFolder, kind), files::Links::Followed);
  if (!draft) return std::unexpected(draft.error());
  dao::Status status = files::copyFile(backup, draft->path(), progress);
  if (status) status = checkCopy(draft->path(), kind);
  if (!status) return std::unexpected(std::move(status));
  shareLikeOthers(draft->path(), programFolder, backupFolder);
  return replace(*draft, stamp);
}

dao::Status putBack(const ReplacedStore& replaced) {
  std::error_code error;
  if (replaced.kept.empty()) {
    fs::remove(replaced.store, error);
    return {};
  }
  return files::replaceFile(replaced.kept, replaced.store);
}

void forget(const ReplacedStore& replaced) {
  std::error_code ignored;
  if (!replaced.kept.empty()) fs::remove(replaced.kept, ignored);
}

dao::Status unusedNow(const fs::path& programFolder) {
  for (const StoreKind& kind : storeKinds) {
    const dao::Status alone = dao::ProbeUnused(dataFile(programFolder, kind));
    if (alone.fault() == dao::Fault::Busy) return alone;
  }
  return {};
}

}  // namespace stores
