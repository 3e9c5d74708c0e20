// The UTF-8 steps that positions in characters need, beside those of platform/text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace richtext {

// Code points of well-formed UTF-8.
std::size_t characterCount(std::string_view text);

// The byte offset behind the first `characters` code points of well-formed UTF-8.
std::size_t byteOffset(std::string_view text, std::size_t characters);

bool isUtf8(std::string_view bytes);

// The text with malformed sequences as U+FFFD and without control characters but the tab; line ends
// become blanks, because a run cannot hold them.
std::string cleaned(std::string_view raw);

std::u32string toCodePoints(std::string_view raw);

}  // namespace richtext
