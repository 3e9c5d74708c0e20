// What no file of the project does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/architecture/source_tree.h"

namespace architecture {

inline constexpr std::size_t longestFile = 600;  // lines

// Each answers with one line per offence, "path:line: what", or nothing. Include rules look at C++
// files alone, the others at every text.
[[nodiscard]] std::vector<std::string> forbiddenIncludes(const SourceFile& file);
[[nodiscard]] std::vector<std::string> toolkitIncludes(const SourceFile& file);
[[nodiscard]] std::vector<std::string> forbiddenWords(const SourceFile& file);
[[nodiscard]] std::vector<std::string> tooLong(const SourceFile& file);
[[nodiscard]] std::vector<std::string> foreignName(const SourceFile& file);

}  // namespace architecture
