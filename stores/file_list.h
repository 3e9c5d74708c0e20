// The list that a backup keeps beside its pictures and papers: what each of them was when it was
// written. It finds damage of the medium; it is no seal against people.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "platform/status/status.h"
#include "stores/progress.h"

namespace stores {

struct ListedFile {
  std::uint64_t checksum = 0;
  std::int64_t bytes = 0;
  std::int64_t written = 0;  // nanoseconds since 1970, as the file system of the copy keeps them
  [[nodiscard]] bool operator==(const ListedFile&) const = default;
};
// By the name below the folder.
using FileList = std::map<std::string, ListedFile>;

inline constexpr auto fileListName = "checksums.txt";

// Of the content. None when the file cannot be read, or when the progress, told in bytes, stops it.
[[nodiscard]] std::optional<std::uint64_t> checksumOf(const std::filesystem::path& file,
                                                      const Progress& progress = {});
// What the list would tell of the file with this content; none when it is not there.
[[nodiscard]] std::optional<ListedFile> listed(const std::filesystem::path& file,
                                               std::uint64_t checksum);

// False for a name that no line can hold, or that does not stay below the folder.
[[nodiscard]] bool canBeListed(const std::string& name);

// Empty where there is no list. Lines that are none are passed over, and all that lies behind the
// first 32 MB.
[[nodiscard]] FileList readFileList(const std::filesystem::path& folder);
// Makes the folder where it is missing.
[[nodiscard]] platform::Status writeFileList(const std::filesystem::path& folder,
                                             const FileList& list);

}  // namespace stores
