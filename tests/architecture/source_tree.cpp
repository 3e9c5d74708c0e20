#include "tests/architecture/source_tree.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace architecture {

namespace {

namespace fs = std::filesystem;

bool isLeftOver(const std::string& folder) {
  return folder.starts_with('.') || folder.starts_with("build") || folder == "run-data" ||
         folder == "tour";
}

std::string textOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return bytes.find('\0') == std::string::npos ? bytes : std::string();
}

}  // namespace

std::vector<SourceFile> readTree(const fs::path& root) {
  std::vector<SourceFile> files;
  for (fs::recursive_directory_iterator entry(root), end; entry != end; ++entry) {
    const fs::path& path = entry->path();
    if (entry->is_directory() && isLeftOver(path.filename().string()))
      entry.disable_recursion_pending();
    if (entry->is_regular_file())
      files.push_back({path.lexically_relative(root).generic_string(), textOf(path)});
  }
  std::ranges::sort(files, {}, &SourceFile::path);
  return files;
}

}  // namespace architecture
