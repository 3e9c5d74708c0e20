// Copying a file byte by byte, with progress.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

#include "platform/files/descriptor.h"
#include "platform/status/status.h"

namespace files {

// Bytes done and in all; false stops the work.
using CopyProgress = std::function<bool(std::int64_t done, std::int64_t total)>;

// Writes a new file and brings it to the disk; nobody but its owner may read it, until its
// permissions are changed. `links` is for the source. Exists when there is a file of that name. On
// a fault nothing is left of the copy; Other when it was stopped.
[[nodiscard]] platform::Status copyFile(const std::filesystem::path& from,
                                        const std::filesystem::path& to,
                                        const CopyProgress& progress = {},
                                        Links links = Links::Refused);

// A second name for a file that is about to be replaced; where the file system has only one for
// each, a copy. Exists when the name is taken.
[[nodiscard]] platform::Status keepAs(const std::filesystem::path& file,
                                      const std::filesystem::path& name);

}  // namespace files
