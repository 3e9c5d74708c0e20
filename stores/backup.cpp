#include "stores/backup.h"

#include <algorithm>
#include <vector>

#include "stores/store_copy.h"
#include "stores/store_file.h"

namespace stores {

namespace {

namespace fs = std::filesystem;

struct Part {
  const StoreKind& kind;
  std::int64_t bytes = 0;
};

// Only a clinic for smokers has the third store.
std::vector<Part> partsOf(const fs::path& programFolder, std::span<const StoreKind> kinds) {
  std::vector<Part> parts;
  for (const StoreKind& kind : kinds) {
    const auto state = stateOf(dataFile(programFolder, kind));
    if (!state && kind.file == smokingKind.file) continue;
    parts.push_back({kind, state ? static_cast<std::int64_t>(state->bytes) : 0});
  }
  return parts;
}

// The share of one store in the progress of all.
Progress shareOf(const Progress& whole, std::int64_t before, const Part& part, std::int64_t all) {
  if (!whole) return {};
  return [&whole, before, &part, all](std::int64_t done, std::int64_t total) {
    const double share =
        static_cast<double>(done) / static_cast<double>(std::max<std::int64_t>(total, 1));
    return whole(before + static_cast<std::int64_t>(share * static_cast<double>(part.bytes)), all);
  };
}

dao::Result<std::vector<StoreDraft>> draftAll(const fs::path& programFolder, const fs::path& into,
                                              const std::vector<Part>& parts,
                                              const Progress& progress, dao::Others others) {
  std::int64_t all = 0;
  for (const Part& part : parts) all += part.bytes;
  std::vector<StoreDraft> drafts;
  std::int64_t before = 0;
  for (const Part& part : parts) {
    const fs::path store = dataFile(programFolder, part.kind);
    // No start opens this one, and keys in the order of older rules would count as damage.
    if (part.kind.file == smokingKind.file) (void)openStoreFile(store.string());
    auto draft =
        draftCopy(store, into / part.kind.file, shareOf(progress, before, part, all), others);
    if (!draft) return std::unexpected(draft.error());
    drafts.push_back(std::move(*draft));
    before += part.bytes;
  }
  return drafts;
}

}  // namespace

bool isDataFolder(const fs::path& programFolder, const fs::path& folder) {
  std::error_code ignored;
  const fs::path data = programFolder / "Data";
  return fs::equivalent(data, folder, ignored) ||
         fs::weakly_canonical(data, ignored) == fs::weakly_canonical(folder, ignored);
}

dao::Status backUp(const fs::path& programFolder, const fs::path& into,
                   std::span<const StoreKind> kinds, const Progress& progress, dao::Others others) {
  if (isDataFolder(programFolder, into))
    return {dao::Fault::Unsupported, into.string() + ": these are the stores themselves."};
  auto drafts = draftAll(programFolder, into, partsOf(programFolder, kinds), progress, others);
  if (!drafts) return drafts.error();
  for (StoreDraft& draft : *drafts) {
    if (dao::Status installed = draft.install(); !installed) return installed;
  }
  return {};
}

}  // namespace stores
