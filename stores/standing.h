// What stands in the place of a store when the program starts: a store that was emptied is not one
// that was never made.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/database.h"
#include "stores/store_kinds.h"

namespace stores {

enum class Standing {
  Good,
  Missing,  // no file
  Useless,  // a file that is no store of its kind: empty, or of another program
  Damaged,  // a store that cannot be opened
  Fewer     // a store that holds clearly less than its last backup
};

struct Finding {
  StoreKind kind = personalKind;
  Standing standing = Standing::Good;
  std::int64_t rows = 0;
  std::filesystem::path backup;  // that holds most among the newest; empty without one
  std::int64_t backupRows = 0;
  std::optional<FileState> backupState;
};

// Of the Personal or the Clinical store. Good while nothing tells that a practice was here: a first
// start finds no store, and none in the folders of backups.
[[nodiscard]] Finding findStore(const std::filesystem::path& programFolder, const StoreKind& kind,
                                std::span<const std::filesystem::path> backups);

// The folders of a backup and of the ones before it.
[[nodiscard]] std::vector<std::filesystem::path> withOlder(const std::filesystem::path& backup);

// Gives what stands there another name, with the stamp, that nothing has yet; the name. What is
// moved is never opened.
[[nodiscard]] dao::Result<std::string> moveAside(const std::filesystem::path& programFolder,
                                                 const StoreKind& kind, std::string_view stamp);

}  // namespace stores
