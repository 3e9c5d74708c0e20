#include "platform/files/replace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace files {

using platform::Status;
using std::filesystem::path;

path behindLinks(const path& target) {
  std::error_code error;
  if (!std::filesystem::is_symlink(target, error)) return target;
  const path resolved = std::filesystem::canonical(target, error);
  return error ? target : resolved;
}

Status replaceFile(const path& draft, const path& target) {
  struct stat old = {};
  if (::lstat(target.c_str(), &old) == 0) {
    if (!S_ISREG(old.st_mode)) return systemFault(target, ELOOP);
    const auto file = Descriptor::openFile(draft, O_RDONLY);
    if (!file) return file.error();
    if (::fchmod(file->number(), old.st_mode & 07777) != 0) return systemFault(draft, errno);
  }
  if (::rename(draft.c_str(), target.c_str()) != 0) return systemFault(target, errno);
  flushFolder(target.parent_path());
  return {};
}

// The group goes first: changing it may take away permissions.
void shareLike(const Descriptor& file, const path& model) {
  struct stat shared = {};
  if (::stat(model.c_str(), &shared) != 0 || !S_ISREG(shared.st_mode)) return;
  (void)!::fchown(file.number(), static_cast<uid_t>(-1), shared.st_gid);
  (void)::fchmod(file.number(), shared.st_mode & 0666);
}

void shareLike(const path& file, const path& model) {
  const auto handle = Descriptor::openFile(file, O_RDONLY);
  if (handle) shareLike(*handle, model);
}

// Without this the new name may be lost with a power cut.
void flushFolder(const path& folder) {
  const auto handle = Descriptor::openFolder(folder);
  if (handle) (void)::fsync(handle->number());
}

}  // namespace files
