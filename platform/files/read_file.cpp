#include "platform/files/read_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace files {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;
using std::filesystem::path;

constexpr std::size_t blockSize = std::size_t{1} << 18U;

Status tooLarge(const path& name) {
  return {Fault::TooLarge, name.string() + ": the file is too large."};
}

// At most the block at the end of the bytes; how many there were.
Result<std::size_t> readBlock(const Descriptor& file, const path& name, std::string& bytes,
                              std::size_t block) {
  const std::size_t before = bytes.size();
  bytes.resize(before + block);
  ssize_t got = -1;
  do {
    got = ::read(file.number(), bytes.data() + before, block);
  } while (got < 0 && errno == EINTR);
  const int error = errno;
  bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
  if (got < 0) return std::unexpected(systemFault(name, error));
  return static_cast<std::size_t>(got);
}

}  // namespace

// A file may grow while it is read: what is held never passes the limit by more than a byte.
Result<std::string> readOpen(const Descriptor& file, const path& name, std::size_t most,
                             std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  std::string bytes;
  for (;;) {
    const auto got = readBlock(file, name, bytes, std::min(blockSize, most + 1 - bytes.size()));
    if (!got) return std::unexpected(got.error());
    if (*got == 0) return bytes;
    if (bytes.size() > most) return std::unexpected(tooLarge(name));
    if (std::chrono::steady_clock::now() > end)
      return std::unexpected(Status(Fault::Busy, name.string() + ": reading takes too long."));
  }
}

Result<std::string> readFile(const path& name, std::size_t most, Links links,
                             std::chrono::milliseconds patience) {
  const auto file = Descriptor::openFile(name, O_RDONLY, links);
  if (!file) return std::unexpected(file.error());
  return readOpen(*file, name, most, patience);
}

Status readBlocks(const path& name, const std::function<bool(std::string_view)>& take) {
  const auto file = Descriptor::openFile(name, O_RDONLY);
  if (!file) return file.error();
  std::string block;
  for (;;) {
    block.clear();
    const auto got = readBlock(*file, name, block, blockSize);
    if (!got) return got.error();
    if (*got == 0) return {};
    if (!take(block)) return {Fault::Other, name.string() + ": stopped."};
  }
}

}  // namespace files
