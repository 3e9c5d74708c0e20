// Reading documents from the bytes of rich-text and plain-text files.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/richtext/document.h"
#include "platform/status/status.h"

namespace richtext {

// What a file may ask for before it counts as damaged. Pieces are runs and paragraphs together.
struct ReadLimits {
  std::size_t inputBytes = 256U << 20U;
  std::size_t depth = 500;
  std::size_t groups = 4'000'000;
  std::size_t textBytes = 64U << 20U;
  std::size_t pieces = 2'000'000;
};

// Empty input is an empty document. Input that is not rich text, or that goes beyond a limit, is
// Damaged; a file that was cut off gives what could be read. A mark of UTF-8 or blanks may stand in
// front. Bytes without a stated code page are UTF-8 when the whole file is, else Turkish (1254).
// Tables become lines of tab-separated cells; the texts of footnotes, text boxes and embedded
// objects stand in brackets at their place; pictures, headers, footers and hidden text are left
// out, optional hyphens too.
platform::Result<Document> readRtf(std::string_view bytes, const ReadLimits& limits = {});

// UTF-8 with or without its mark; bytes that are not UTF-8 are read as Turkish (1254).
Document readPlain(std::string_view bytes, const CharFormat& format = {});

}  // namespace richtext
