#include "platform/files/replace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/files/descriptor.h"

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
  if (::stat(target.c_str(), &old) == 0 && ::chmod(draft.c_str(), old.st_mode & 07777) != 0)
    return systemFault(draft, errno);
  if (::rename(draft.c_str(), target.c_str()) != 0) return systemFault(target, errno);
  flushFolder(target.parent_path());
  return {};
}

// Without this the new name may be lost with a power cut.
void flushFolder(const path& folder) {
  const auto handle = Descriptor::open(folder.empty() ? path{"."} : folder, O_RDONLY | O_DIRECTORY);
  if (handle) (void)::fsync(handle->number());
}

}  // namespace files
