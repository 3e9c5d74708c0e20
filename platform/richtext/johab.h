// Johab (code page 1361), the Korean code whose Hangul is spelt letter by letter in the bits of its
// two bytes. The Unicode library has no converter for it.
#pragma once

#include <string>
#include <string_view>

namespace richtext {

// The signs and the Chinese characters stand in the order of page 949, whose converter knows them.
struct JohabCharacter {
  std::string utf8;     // of Hangul and ASCII
  std::string wansung;  // of anything else: its two bytes in page 949
};

// The character at the front, which is taken off the bytes. U+FFFD for what Johab has not.
JohabCharacter takeJohab(std::string_view& bytes);

}  // namespace richtext
