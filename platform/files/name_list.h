// Data/List.dat: the names that station messages were sent from and to, one per record of 30 bytes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/status/status.h"

namespace files {

// More than any practice has.
inline constexpr long mostNames = 10000;

// All names in the order of the file, trimmed; blank records are left out. A missing file is
// created, empty. TooLarge when there are more than `mostNames`, as for the next.
[[nodiscard]] platform::Result<std::vector<std::string>> readNames(
    const std::filesystem::path& path);

// Appends the name unless it is there already, compared trimmed and as wide as the file keeps it.
// A blank name is not added. Two stations adding at once both succeed.
[[nodiscard]] platform::Status addName(const std::filesystem::path& path, std::string_view name);

}  // namespace files
