#include "stores/store_copy.h"

#include "platform/files/replace.h"

namespace stores {

dao::Result<StoreDraft> draftCopy(const std::filesystem::path& from,
                                  const std::filesystem::path& to, const Progress& progress,
                                  dao::Others others) {
  auto draft = StoreDraft::take(to);
  if (!draft) return draft;
  const dao::Status written = dao::CompactDatabase(from, draft->path(), progress, others);
  if (!written) return std::unexpected(written);
  // For the eyes of those who may read the store.
  files::shareLike(draft->path(), from);
  return draft;
}

dao::Status copyStore(const std::filesystem::path& from, const std::filesystem::path& to,
                      const Progress& progress, dao::Others others) {
  auto draft = draftCopy(from, to, progress, others);
  return draft ? draft->install() : draft.error();
}

}  // namespace stores
