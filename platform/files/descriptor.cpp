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

Result<Descriptor> Descriptor::open(const std::filesystem::path& path, int flags) {
  int number = -1;
  do {
    number = ::open(path.c_str(), flags | O_CLOEXEC, 0666);
  } while (number < 0 && errno == EINTR);
  if (number < 0) return std::unexpected(systemFault(path, errno));
  return Descriptor{number};
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
  if (::fstat(file.number(), &held) != 0 || ::stat(path.c_str(), &named) != 0) return false;
  return held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}

Status systemFault(const std::filesystem::path& path, int error) {
  return {platform::faultOf(error), path.string() + ": " + std::generic_category().message(error)};
}

}  // namespace files
