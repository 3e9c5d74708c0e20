// Internal: a private copy of a store as it stands at one moment.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/dao/engine.h"

namespace dao {

// Pages copied, and pages in all. False stops the copying.
using SnapshotProgress = std::function<bool(std::int64_t done, std::int64_t total)>;

// The copy lies in the folder of temporary files, under no name, and goes with its engine. It is
// taken in steps, and between them other stations save; a save makes it begin anew, so after a few
// of them it is taken in one go. Busy, Damaged, DiskFull (of the temporary files), Other when it
// was stopped.
[[nodiscard]] Result<std::shared_ptr<Engine>> takeSnapshot(Engine& source,
                                                           const SnapshotProgress& progress);

}  // namespace dao
