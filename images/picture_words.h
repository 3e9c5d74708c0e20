// What is said of a picture.
#pragma once

#include <string>
#include <string_view>

#include "images/archive_picture.h"
#include "shell/station.h"

namespace images {

// The last part of a path, whichever system wrote it.
[[nodiscard]] std::string_view fileName(std::string_view path);

// "Picture 2", the file's name and, on a line of its own, why it cannot be shown.
[[nodiscard]] std::string wordsFor(shell::Station& istasyon, std::size_t number,
                                   const ArchivePicture& picture);

// "100%", as the language writes it.
[[nodiscard]] std::string percentText(shell::Station& istasyon, int percent);

}  // namespace images
