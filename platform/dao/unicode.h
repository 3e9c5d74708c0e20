// Internal: characters and case of UTF-8 texts. Malformed parts count as U+FFFD.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace dao {

[[nodiscard]] std::u16string toUtf16(std::string_view text);
[[nodiscard]] std::string toUtf8(std::u16string_view wide);
[[nodiscard]] std::u32string characters(std::string_view text);

// The text with every malformed part replaced by U+FFFD.
[[nodiscard]] std::string repairedUtf8(std::string_view text);
[[nodiscard]] int characterCount(std::string_view text);
// The bytes of the first `characters` code points.
[[nodiscard]] std::string_view leftCharacters(std::string_view text, std::int64_t characters);

}  // namespace dao
