// Putting a finished file in the place of another.
#pragma once

#include <filesystem>

#include "platform/files/descriptor.h"
#include "platform/status/status.h"

namespace files {

// The file that stands behind a symbolic link; the path itself where there is none.
[[nodiscard]] std::filesystem::path behindLinks(const std::filesystem::path& path);

// Gives `draft`, which lies in the folder of `target` and is on the disk already, the name of
// `target` and the permissions of the file that stands there; whoever looks meets the old file or
// the new one. On a fault both are as they were. NotAFile when a link or a folder stands there.
[[nodiscard]] platform::Status replaceFile(const std::filesystem::path& draft,
                                           const std::filesystem::path& target);

// Gives the file, never what a link leads to, the permissions and the group of another, as far as
// this user may; a file that is not there has nothing to give.
void shareLike(const Descriptor& file, const std::filesystem::path& model);
void shareLike(const std::filesystem::path& file, const std::filesystem::path& model);

// Brings names that were given, changed or removed in the folder to the disk. Some file systems
// cannot, and need not.
void flushFolder(const std::filesystem::path& folder);

}  // namespace files
