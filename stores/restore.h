// Putting the store of a backup in the place of the present one.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/dao/database.h"
#include "stores/progress.h"
#include "stores/store_kinds.h"

namespace stores {

// A store that was replaced, until it is known that the new one can be used.
struct ReplacedStore {
  std::filesystem::path store;
  std::filesystem::path kept;  // the old file, beside; empty when there was none
};

// Copies the backup's file beside the store, checks the copy (sound, and a store of that kind) and
// only then gives it the store's place; the present file stays beside it under a name with the
// stamp. After a fault the store is as it was. No station may have the store open, not even the
// caller. Missing (no such backup), Damaged, Unsupported (another store, or none), ReadOnly,
// DiskFull, Busy.
[[nodiscard]] dao::Result<ReplacedStore> restoreStore(const StoreKind& kind,
                                                      const std::filesystem::path& programFolder,
                                                      const std::filesystem::path& backupFolder,
                                                      std::string_view stamp,
                                                      const Progress& progress = {});

// The new store cannot be used: the old one comes back.
dao::Status putBack(const ReplacedStore& replaced);
// The new store was opened: the old file goes.
void forget(const ReplacedStore& replaced);

// Busy when somebody reads or writes a store of the folder at this moment.
[[nodiscard]] dao::Status unusedNow(const std::filesystem::path& programFolder);

}  // namespace stores
