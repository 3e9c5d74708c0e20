#include "platform/files/copy_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <vector>

#include "platform/files/descriptor.h"

namespace files {
namespace {

using platform::Fault;
using platform::Status;
using std::filesystem::path;

constexpr std::size_t blockSize = std::size_t{1} << 20;

struct End {
  Descriptor file;
  const path& name;
};

Status transfer(const End& from, const End& to, const CopyProgress& progress) {
  struct stat source = {};
  if (::fstat(from.file.number(), &source) != 0) return systemFault(from.name, errno);
  std::vector<char> block(blockSize);
  std::int64_t done = 0;
  for (;;) {
    const ssize_t read = ::read(from.file.number(), block.data(), block.size());
    if (read < 0 && errno == EINTR) continue;
    if (read < 0) return systemFault(from.name, errno);
    if (read == 0) break;
    const std::string_view bytes(block.data(), static_cast<std::size_t>(read));
    if (Status status = writeAll(to.file, to.name, bytes); !status) return status;
    done += read;
    if (progress && !progress(done, std::max<std::int64_t>(done, source.st_size)))
      return {Fault::Other, from.name.filename().string() + ": the work was stopped."};
  }
  return ::fsync(to.file.number()) == 0 ? Status() : systemFault(to.name, errno);
}

}  // namespace

Status copyFile(const path& from, const path& to, const CopyProgress& progress, Links links) {
  auto source = Descriptor::openFile(from, O_RDONLY, links);
  if (!source) return source.error();
  auto copy = Descriptor::openFile(to, O_WRONLY | O_CREAT | O_EXCL, Links::Refused, privateMode);
  if (!copy) return copy.error();
  Status status = transfer({std::move(*source), from}, {std::move(*copy), to}, progress);
  if (!status) (void)::unlink(to.c_str());
  return status;
}

platform::Status keepAs(const std::filesystem::path& file, const std::filesystem::path& name) {
  std::error_code refused;
  std::filesystem::create_hard_link(file, name, refused);
  return refused ? copyFile(file, name) : platform::Status();
}

}  // namespace files
