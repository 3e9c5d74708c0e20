// Where a person keeps files: what a drive list is elsewhere.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace files {

// The user's home, the root, and every disk, stick and network folder that is mounted beside them.
[[nodiscard]] std::vector<std::filesystem::path> places();
// The user's home; the root when there is none.
[[nodiscard]] std::filesystem::path home();

// The mount points that a person would look for in a table of mounts as the system writes it: no
// parts of the system itself.
[[nodiscard]] std::vector<std::filesystem::path> mountPoints(std::string_view table);

// The folders in a folder by their names; hidden ones are passed over. Nothing when it cannot be
// read.
[[nodiscard]] std::vector<std::filesystem::path> foldersIn(const std::filesystem::path& folder);

}  // namespace files
