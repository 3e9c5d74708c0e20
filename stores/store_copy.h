// A compact, checked copy of a store in place of an older one: the old file is there until the new
// one is whole.
#pragma once

#include <filesystem>

#include "platform/dao/database.h"
#include "stores/progress.h"
#include "stores/store_draft.h"

namespace stores {

// Copies the store `from` to `to`, over an older copy. Other stations may have `from` open: the
// copy holds the rows of one moment.
//
// It is written beside `to`, checked (every table and index sound, and as many rows in each table
// as in the source), brought to the disk, and only then takes the name; after a fault, a stop or a
// crash the old file stands as it was. What a crashed copy left behind goes with the next one.
//
// With `to` naming the store itself, it is compacted where it lies; no station may have it open
// then, not even the caller.
//
// Progress counts bytes, the checking as many as the writing. Missing (no store, or no folder to
// write into), Busy (another copy into the same file is under way, or the store is locked),
// ReadOnly, DiskFull, Damaged (the store), Unsupported (a file of another program), Other when it
// was stopped.
[[nodiscard]] dao::Status copyStore(const std::filesystem::path& from,
                                    const std::filesystem::path& to, const Progress& progress = {},
                                    dao::Others others = dao::Others::Wait);

// The same up to the moment when it takes the name: for stores that are replaced together.
[[nodiscard]] dao::Result<StoreDraft> draftCopy(const std::filesystem::path& from,
                                                const std::filesystem::path& to,
                                                const Progress& progress = {},
                                                dao::Others others = dao::Others::Wait);

}  // namespace stores
