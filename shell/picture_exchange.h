// What the screen of a record and the picture archive hand each other.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace shell {

inline constexpr std::size_t pictureCount = 6;

// The six paths of the record's pictures, an empty one being a free place, and what the archive
// says of the record.
struct PictureExchange {
  std::array<std::string, pictureCount> yollar;
  std::string baslik;  // of the archive's window
  std::string isim;
  std::string tarih;
  std::size_t enUzun = 0;  // characters that the record keeps of a path; 0 means all
};

}  // namespace shell
