#include "stores/store_copy.h"

namespace stores {

namespace {

// The copy of a store is for the eyes of those who may read the store.
void keepPermissions(const std::filesystem::path& from, const std::filesystem::path& copy) {
  std::error_code ignored;
  const auto status = std::filesystem::status(from, ignored);
  if (!std::filesystem::exists(status)) return;
  std::filesystem::permissions(copy, status.permissions(), ignored);
}

}  // namespace

dao::Result<StoreDraft> draftCopy(const std::filesystem::path& from,
                                  const std::filesystem::path& to, const Progress& progress,
                                  dao::Others others) {
  auto draft = StoreDraft::take(to);
  if (!draft) return draft;
  const dao::Status written = dao::CompactDatabase(from, draft->path(), progress, others);
  if (!written) return std::unexpected(written);
  keepPermissions(from, draft->path());
  return draft;
}

dao::Status copyStore(const std::filesystem::path& from, const std::filesystem::path& to,
                      const Progress& progress, dao::Others others) {
  auto draft = draftCopy(from, to, progress, others);
  return draft ? draft->install() : draft.error();
}

}  // namespace stores
