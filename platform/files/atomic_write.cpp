#include "platform/files/atomic_write.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
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

// A file beside the target that nobody else has; names left by a crash are passed over.
Result<Draft> createDraft(const path& target) {
  static std::atomic<unsigned> counter = 0;
  for (;;) {
    const std::string suffix = '.' + std::to_string(::getpid()) + '.' + std::to_string(counter++);
    path name = target;
    name += suffix + ".new";
    auto file = Descriptor::open(name, O_WRONLY | O_CREAT | O_EXCL);
    if (file) return Draft{std::move(*file), std::move(name)};
    if (file.error().fault() != Fault::Exists) return std::unexpected(file.error());
  }
}

Status fillDraft(const Draft& draft, const path& target, std::string_view content) {
  struct stat old = {};
  if (::stat(target.c_str(), &old) == 0 &&
      ::fchmod(draft.file.number(), old.st_mode & 07777) != 0) {
    return systemFault(draft.name, errno);
  }
  if (Status written = writeAll(draft.file, draft.name, content); !written) return written;
  if (::fsync(draft.file.number()) != 0) return systemFault(draft.name, errno);
  return {};
}

}  // namespace

Status writeAtomically(const path& path, std::string_view content) {
  const auto target = behindLinks(path);
  auto draft = createDraft(target);
  if (!draft) return draft.error();
  Status status = fillDraft(*draft, target, content);
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
