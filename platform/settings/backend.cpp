#include "platform/settings/backend.h"

#include "platform/files/folders.h"
#include "platform/settings/file_backend.h"

namespace settings {

using platform::Result;

Result<Values> MemoryBackend::load() {
  loaded_ = true;
  return values_;
}

Result<Values> MemoryBackend::update(const Change& change) {
  loaded_ = true;
  change(values_);
  return values_;
}

std::unique_ptr<Backend> openBackend(const std::filesystem::path& path,
                                     std::vector<Place> guarded) {
  if (path.empty()) return std::make_unique<MemoryBackend>();
  auto file = std::make_unique<FileBackend>(path, std::move(guarded));
  // What keeps the folder from being created also keeps it from being written.
  files::createFolders(path.parent_path()).ignore();
  if (files::isWritable(path.parent_path())) return file;
  return std::make_unique<MemoryBackend>(file->load().value_or(Values{}), file->guard());
}

}  // namespace settings
