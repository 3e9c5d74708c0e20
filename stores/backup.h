// A backup: a folder with compact copies of the stores under their own names.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "platform/dao/database.h"
#include "stores/progress.h"
#include "stores/store_kinds.h"

namespace stores {

// Whether both paths lead to the program's own `Data`, through whatever links and dots.
[[nodiscard]] bool isDataFolder(const std::filesystem::path& programFolder,
                                const std::filesystem::path& folder);

// Copies those stores of the program's folder that are there; the first two are expected to be. All
// copies are written and checked before the first of them takes the place of an old one, so that a
// folder holds the old backup or the new one.
//
// The two backups before it stay, in folders of their own inside: `olderBackups`.
//
// Progress counts bytes over all stores. The faults are those of copyStore; Unsupported for the
// `Data` folder itself.
[[nodiscard]] dao::Status backUp(const std::filesystem::path& programFolder,
                                 const std::filesystem::path& into,
                                 std::span<const StoreKind> kinds, const Progress& progress = {},
                                 dao::Others others = dao::Others::Wait);

inline constexpr const char* olderBackups[] = {"Backup 1", "Backup 2"};

// A store of the program that holds clearly less than its backup in the folder.
struct FewerRecords {
  std::string file;
  std::int64_t now = 0;
  std::int64_t backup = 0;
};
[[nodiscard]] std::vector<FewerRecords> fewerThanBackup(const std::filesystem::path& programFolder,
                                                        const std::filesystem::path& backup,
                                                        std::span<const StoreKind> kinds);

}  // namespace stores
