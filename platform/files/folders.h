// The program's folder and the folders below it.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/status/status.h"

namespace files {

// `inner` below `root`; accepts backslashes, as stored paths have them: "Data\\Personal.mdb".
[[nodiscard]] std::filesystem::path programPath(const std::filesystem::path& root,
                                                std::string_view inner);

// Creates the folder and those above it; one that is there already is no fault.
[[nodiscard]] platform::Status createFolders(const std::filesystem::path& folder);

// Whether files can be created in the folder. Tries it: permissions alone do not tell on a share.
[[nodiscard]] bool isWritable(const std::filesystem::path& folder);

}  // namespace files
