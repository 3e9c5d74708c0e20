// Whether a backup would do: it is opened as a restore would, in a folder of its own.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>

#include "platform/dao/database.h"
#include "platform/text/date.h"
#include "stores/practice_files.h"
#include "stores/progress.h"

namespace stores {

// What a restore would bring back.
struct DrillReport {
  std::int64_t patients = 0;
  std::int64_t records = 0;  // dated ones of all kinds
  FileCheck files;           // letterhead, documents, pictures
  std::optional<text::DateTime> lastExamination;
};

// Copies the backup into a new folder below `scratch`, checks every store of it, reads the
// files that it lists, and counts; the folder is gone afterwards, whatever happened. The backup
// itself is only read. The Smoking store may be missing. Faults are those of checkCopy and of
// copying.
[[nodiscard]] dao::Result<DrillReport> restoreDrill(const std::filesystem::path& backup,
                                                    const std::filesystem::path& scratch,
                                                    const Progress& progress = {});

// The folder whose backup was written last; none when no folder holds one.
[[nodiscard]] std::optional<std::filesystem::path> newestBackup(
    std::span<const std::filesystem::path> folders);

}  // namespace stores
