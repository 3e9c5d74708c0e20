// Maintenance of a store's file: checked, mended, and replaced by a compact copy of itself.
#pragma once

#include <cstdint>
#include <string>

#include "platform/dao/database.h"
#include "stores/progress.h"

namespace stores {

struct StoreCare {
  dao::Status status;  // why the file was left as it was
  bool wasDamaged = false;
  std::string kept;  // the name of the damaged file that was kept beside, if any
  std::uintmax_t before = 0;
  std::uintmax_t after = 0;  // bytes
};

// The store is closed everywhere. It is replaced only by a copy whose every table and index is
// sound, and that has all its rows; a fault, a stop or a crash at any moment leaves it as it was or
// whole and new. A file whose damage could not be mended, but whose rows can be copied, is kept
// beside. Progress counts the copying. Missing when there is no such file.
[[nodiscard]] StoreCare careForStore(const std::string& path, const Progress& progress = {});

// What a run that was killed left in the folder of the stores.
void removeUnfinishedCopies(const std::string& folder);

}  // namespace stores
