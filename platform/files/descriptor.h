// An open file of the operating system, closed when its owner goes.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string_view>

#include "platform/status/status.h"

namespace files {

// Whether a symbolic link may stand for the file that is meant. In a folder that others may write
// to, a link can lead to any file of this user's.
enum class Links { Refused, Followed };

inline constexpr mode_t sharedMode = 0666;   // as far as the user's mask lets it be
inline constexpr mode_t privateMode = 0600;  // this user alone

class Descriptor {
 public:
  // A plain file: NotAFile for everything else, which is neither waited for nor created, emptied or
  // written to. `flags` and `mode` as open(2) takes them; never inherited by started programs.
  static platform::Result<Descriptor> openFile(const std::filesystem::path& path, int flags,
                                               Links links = Links::Refused,
                                               mode_t mode = sharedMode);
  static platform::Result<Descriptor> openFolder(const std::filesystem::path& path);

  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept;
  Descriptor& operator=(Descriptor&& other) noexcept;
  ~Descriptor();

  [[nodiscard]] int number() const { return number_; }
  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  void close();

 private:
  int number_ = -1;
};

// All bytes, from where the file stands; `path` is for the text of a fault.
[[nodiscard]] platform::Status writeAll(const Descriptor& file, const std::filesystem::path& path,
                                        std::string_view bytes);

// Whether the open file is the one that the path itself names now; nobody may have deleted or
// replaced it.
[[nodiscard]] bool isNamed(const Descriptor& file, const std::filesystem::path& path);

// Takes everything out of the open file.
[[nodiscard]] platform::Status emptyFile(const Descriptor& file, const std::filesystem::path& path);

// Removes the name when the open file is what it names; another file that has taken it stays.
void removeNamed(const Descriptor& file, const std::filesystem::path& path);

// The fault that an errno value stands for, with a text that names the file.
[[nodiscard]] platform::Status systemFault(const std::filesystem::path& path, int error);

}  // namespace files
