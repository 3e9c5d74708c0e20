// Texts for the files that have one code page, and fields of fixed widths: what of a text they
// cannot keep is told before it is lost.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "shell/phrases.h"
#include "shell/station.h"

namespace shell {

struct FileText {
  std::string_view caption;  // of its field: a key of the text lookup
  std::string_view text;
  std::size_t width;  // of the field
};

// Tells which characters would be replaced, and by which, and what would be cut, and asks the
// question. True without asking when every word is kept.
[[nodiscard]] bool boyleKalsinMi(Station& istasyon, std::span<const FileText> texts,
                                 Phrase question);

// How many more characters the field has room for; negative when the text is too long.
[[nodiscard]] long kalanYer(std::string_view text, std::size_t width);

}  // namespace shell
