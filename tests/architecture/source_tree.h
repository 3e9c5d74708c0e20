// The files of the project, as a check sees them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace architecture {

struct SourceFile {
  std::string path;  // below the project's folder: "shell/station.h"
  std::string text;  // empty for a file that holds no text
};

// Every file below the folder but what building and running leave there, in the order of the paths.
[[nodiscard]] std::vector<SourceFile> readTree(const std::filesystem::path& root);

}  // namespace architecture
