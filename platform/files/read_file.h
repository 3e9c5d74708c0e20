// Reading a whole file that somebody else may have put there.
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "platform/files/descriptor.h"
#include "platform/status/status.h"

namespace files {

inline constexpr std::size_t megabyte = std::size_t{1} << 20U;
inline constexpr std::chrono::seconds readingPatience{5};

// The bytes of a file that is open, from where it stands. TooLarge when it has more than `most`,
// Busy when a slow disk or share takes longer than `patience`.
[[nodiscard]] platform::Result<std::string> readOpen(
    const Descriptor& file, const std::filesystem::path& path, std::size_t most,
    std::chrono::milliseconds patience = readingPatience);

// The bytes of a plain file. NotAFile for a pipe, a device or a folder.
[[nodiscard]] platform::Result<std::string> readFile(
    const std::filesystem::path& path, std::size_t most, Links links = Links::Refused,
    std::chrono::milliseconds patience = readingPatience);

// The bytes of a plain file of any size, block by block; Other when `take` stops it by false.
[[nodiscard]] platform::Status readBlocks(const std::filesystem::path& path,
                                          const std::function<bool(std::string_view)>& take);

}  // namespace files
