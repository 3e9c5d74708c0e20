// An open file of the operating system, closed when its owner goes.
#pragma once

#include <filesystem>
#include <string_view>

#include "platform/status/status.h"

namespace files {

class Descriptor {
 public:
  // `flags` and a mode of 0666 as open(2) takes them; never inherited by started programs.
  static platform::Result<Descriptor> open(const std::filesystem::path& path, int flags);

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

// Whether the open file is the one that the path names now; nobody may have deleted or replaced it.
[[nodiscard]] bool isNamed(const Descriptor& file, const std::filesystem::path& path);

// The fault that an errno value stands for, with a text that names the file.
[[nodiscard]] platform::Status systemFault(const std::filesystem::path& path, int error);

}  // namespace files
