#include "platform/files/descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/status/system_fault.h"

namespace files {

using platform::Result;
using platform::Status;

namespace {

Result<Descriptor> openAny(const std::filesystem::path& path, int flags, mode_t mode) {
  int number = -1;
  do {
    number = ::open(path.c_str(), flags | O_CLOEXEC, mode);
  } while (number < 0 && errno == EINTR);
  if (number < 0) return std::unexpected(systemFault(path, errno));
  return Descriptor{number};
}

}  // namespace

// Emptied only when it is known to be a plain file.
Result<Descriptor> Descriptor::openFile(const std::filesystem::path& path, int flags, Links links,
                                        mode_t mode) {
  const int follow = links == Links::Refused ? O_NOFOLLOW : 0;
  auto file = openAny(path, (flags & ~O_TRUNC) | follow | O_NONBLOCK | O_NOCTTY, mode);
  if (!file) return file;
  struct stat state = {};
  if (::fstat(file->number(), &state) != 0) return std::unexpected(systemFault(path, errno));
  if (!S_ISREG(state.st_mode)) return std::unexpected(systemFault(path, ELOOP));
  if ((flags & O_TRUNC) == 0) return file;
  if (const Status emptied = emptyFile(*file, path); !emptied) return std::unexpected(emptied);
  return file;
}

Result<Descriptor> Descriptor::openFolder(const std::filesystem::path& path) {
  return openAny(path.empty() ? std::filesystem::path(".") : path, O_RDONLY | O_DIRECTORY, 0);
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this == &other) return *this;
  close();
  number_ = std::exchange(other.number_, -1);
  return *this;
}

Descriptor::~Descriptor() {
  close();
}

void Descriptor::close() {
  if (number_ >= 0) ::close(std::exchange(number_, -1));
}

Status writeAll(const Descriptor& file, const std::filesystem::path& path, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return systemFault(path, errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

bool isNamed(const Descriptor& file, const std::filesystem::path& path) {
  struct stat held = {};
  struct stat named = {};
  if (::fstat(file.number(), &held) != 0 || ::lstat(path.c_str(), &named) != 0) return false;
  return held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

Status emptyFile(const Descriptor& file, const std::filesystem::path& path) {
  return ::ftruncate(file.number(), 0) == 0 ? Status{} : systemFault(path, errno);
}

void removeNamed(const Descriptor& file, const std::filesystem::path& path) {
  if (isNamed(file, path)) (void)::unlink(path.c_str());
}

Status systemFault(const std::filesystem::path& path, int error) {
  if (platform::faultOf(error) == platform::Fault::NotAFile)
    return {platform::Fault::NotAFile, path.string() + ": this is no plain file."};
  return {platform::faultOf(error), path.string() + ": " + std::generic_category().message(error)};
}

}  // namespace files
