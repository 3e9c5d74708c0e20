#include "platform/files/folders.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <system_error>

#include "platform/files/descriptor.h"

namespace files {

std::filesystem::path programPath(const std::filesystem::path& root, std::string_view inner) {
  std::string slashed{inner};
  std::ranges::replace(slashed, '\\', '/');
  slashed.erase(0, slashed.find_first_not_of('/'));
  return root / slashed;
}

platform::Status createFolders(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) return systemFault(folder, error.value());
  return {};
}

bool isWritable(const std::filesystem::path& folder) {
  std::string name = (folder / ".writable.XXXXXX").string();
  const Descriptor probe{::mkstemp(name.data())};
  if (probe.isOpen()) (void)::unlink(name.c_str());
  return probe.isOpen();
}

}  // namespace files
