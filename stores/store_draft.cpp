#include "stores/store_draft.h"

#include <string>

#include "platform/files/replace.h"
#include "stores/store_kinds.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

fs::path beside(const fs::path& target, const char* ending) {
  fs::path name = target;
  return name += ending;
}

void removeQuietly(const fs::path& path) {
  std::error_code ignored;
  fs::remove(path, ignored);
}

// A journal of the old file, left by a crash, would be played into the new one. Opening the old
// file plays it where it belongs.
void settleJournal(const fs::path& target) {
  const fs::path journal = beside(target, "-journal");
  if (sizeOf(journal) == 0) return;
  (void)dao::OpenDatabase(target);
  if (sizeOf(journal) != 0) removeQuietly(journal);
}

// Where the draft may be written and put in place.
dao::Result<fs::path> placeOf(const fs::path& path, files::Links links) {
  std::error_code error;
  const auto there = fs::symlink_status(path, error);
  if (!fs::exists(there) || fs::is_regular_file(there)) return path;
  const dao::Status refused(dao::Fault::NotAFile,
                            path.filename().string() + ": this is no plain file.");
  if (!fs::is_symlink(there) || links == files::Links::Refused) return std::unexpected(refused);
  const auto store = dao::OpenDatabase(path, {.access = dao::Access::ReadOnly});
  if (!store || store->tables().value_or(std::vector<std::string>()).empty())
    return std::unexpected(refused);
  return files::behindLinks(path);
}

}  // namespace

dao::Result<StoreDraft> StoreDraft::take(const fs::path& path, files::Links links) {
  const auto place = placeOf(path, links);
  if (!place) return std::unexpected(place.error());
  const fs::path& target = *place;
  auto turn = files::ProcessLock::open(beside(target, ".lock"));
  if (!turn) return std::unexpected(turn.error());
  const auto alone = turn->tryAlone();
  // A file system without locks is still good for a copy.
  if (!alone && alone.error().fault() != dao::Fault::Unsupported)
    return std::unexpected(alone.error());
  if (alone && !*alone)
    return std::unexpected(dao::Status(
        dao::Fault::Busy, target.filename().string() + ": another copy is being written."));
  StoreDraft draft(std::move(*turn), target);
  draft.remove();
  return draft;
}

StoreDraft::~StoreDraft() {
  if (!turn_) return;  // moved from
  remove();
  removeQuietly(beside(target_, ".lock"));
}

void StoreDraft::remove() {
  removeQuietly(path());
  removeQuietly(beside(path(), "-journal"));
}

fs::path StoreDraft::path() const {
  return beside(target_, ".new");
}

dao::Status StoreDraft::install() {
  settleJournal(target_);
  return files::replaceFile(path(), target_);
}

}  // namespace stores
