// Replacing a file so that a reader, a crash or a full disk meets the old content or the new one.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/files/descriptor.h"
#include "platform/status/status.h"

namespace files {

// Writes beside the file, flushes, renames over it. The file keeps its permissions, and what is
// written has them from its first byte; a new one gets `mode`. A link is NotAFile, or stays one and
// the file behind it is replaced. On a fault the old file is untouched and nothing is left beside
// it.
[[nodiscard]] platform::Status writeAtomically(const std::filesystem::path& path,
                                               std::string_view content,
                                               Links links = Links::Refused,
                                               mode_t mode = sharedMode);

}  // namespace files
