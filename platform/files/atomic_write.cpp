#include "platform/files/atomic_write.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <optional>
#include <string>

#include "platform/files/descriptor.h"
#include "platform/files/replace.h"

namespace files {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;
using std::filesystem::path;

struct Draft {
  Descriptor file;
  path name;
};

// What stands in the place of the file; none when nothing does.
Result<std::optional<mode_t>> modeOf(const path& target) {
  struct stat old = {};
  if (::lstat(target.c_str(), &old) != 0) return std::nullopt;
  if (!S_ISREG(old.st_mode)) return std::unexpected(systemFault(target, ELOOP));
  return old.st_mode & 07777;
}

// A file beside the target that nobody else has; names left by a crash are passed over.
Result<Draft> createDraft(const path& target, mode_t mode) {
  static std::atomic<unsigned> counter = 0;
  for (;;) {
    const std::string suffix = '.' + std::to_string(::getpid()) + '.' + std::to_string(counter++);
    path name = target;
    name += suffix + ".new";
    auto file = Descriptor::openFile(name, O_WRONLY | O_CREAT | O_EXCL, Links::Refused, mode);
    if (file) return Draft{std::move(*file), std::move(name)};
    if (file.error().fault() != Fault::Exists) return std::unexpected(file.error());
  }
}

Status fillDraft(const Draft& draft, std::optional<mode_t> mode, std::string_view content) {
  if (mode && ::fchmod(draft.file.number(), *mode) != 0) return systemFault(draft.name, errno);
  if (Status written = writeAll(draft.file, draft.name, content); !written) return written;
  if (::fsync(draft.file.number()) != 0) return systemFault(draft.name, errno);
  return {};
}

}  // namespace

Status writeAtomically(const path& path, std::string_view content, Links links, mode_t mode) {
  const auto target = links == Links::Followed ? behindLinks(path) : path;
  const auto old = modeOf(target);
  if (!old) return old.error();
  auto draft = createDraft(target, *old ? privateMode : mode);
  if (!draft) return draft.error();
  Status status = fillDraft(*draft, *old, content);
  draft->file.close();
  if (status && ::rename(draft->name.c_str(), target.c_str()) != 0) {
    status = systemFault(target, errno);
  }
  if (!status) {
    (void)::unlink(draft->name.c_str());
    return status;
  }
  flushFolder(target.parent_path());
  return {};
}

}  // namespace files
