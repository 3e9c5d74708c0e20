// A folder of a test's own, gone with the test.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace support {

class TemporaryFolder {
 public:
  explicit TemporaryFolder(
      const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
    std::string pattern = (parent / "practice-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] std::string path() const { return path_.string(); }
  [[nodiscard]] std::string operator/(const char* inner) const { return (path_ / inner).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace support
