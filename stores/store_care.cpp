#include "stores/store_care.h"

#include <filesystem>

#include "platform/files/copy_file.h"
#include "platform/files/replace.h"
#include "stores/store_copy.h"
#include "stores/store_kinds.h"

namespace stores {

namespace {

namespace fs = std::filesystem;
using dao::Fault;
using dao::Status;

constexpr auto freshCopy = "NewFile.mdb";

Status keepDamaged(const fs::path& store, StoreCare& care) {
  fs::path kept = store;
  kept += ".damaged";
  std::error_code ignored;
  fs::remove(kept, ignored);
  if (Status named = files::keepAs(store, kept); !named) return named;
  care.kept = kept.filename().string();
  return {};
}

// The copy is checked on its own, so that a repair that failed does not stop it.
Status replaceByCopy(const fs::path& store, StoreCare& care, bool sound, const Progress& progress) {
  const fs::path fresh = store.parent_path() / freshCopy;
  Status status = copyStore(store, fresh, progress);
  if (status && !sound) status = keepDamaged(store, care);
  if (status) status = files::replaceFile(fresh, store);
  if (!status) removeUnfinishedCopies(store.parent_path().string());
  return status;
}

}  // namespace

StoreCare careForStore(const std::string& path, const Progress& progress) {
  const fs::path store = files::behindLinks(path);
  StoreCare care;
  care.before = sizeOf(store);
  const auto repaired = dao::RepairDatabase(store);
  care.wasDamaged = repaired ? repaired->wasDamaged : repaired.error().fault() == Fault::Damaged;
  care.status = replaceByCopy(store, care, repaired.has_value(), progress);
  care.after = sizeOf(store);
  return care;
}

void removeUnfinishedCopies(const std::string& folder) {
  std::error_code passedOver;
  for (const char* ending : {"", ".new", ".new-journal", ".lock"})
    fs::remove(fs::path(folder) / (std::string(freshCopy) + ending), passedOver);
}

}  // namespace stores
