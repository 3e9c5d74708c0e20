// Characters (code points) of UTF-8 text. A byte sequence that is not UTF-8 counts and reads as
// U+FFFD, one per broken sequence; no function here fails or reads beyond its text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

// The character that starts at `position`, which moves behind it. Precondition: position < size.
[[nodiscard]] char32_t nextCharacter(std::string_view text, std::size_t& position);
// Adds one character; what is no Unicode scalar value becomes U+FFFD.
void appendCharacter(std::string& text, char32_t character);

[[nodiscard]] bool isAscii(std::string_view text);
[[nodiscard]] std::size_t length(std::string_view text);

// The first, or last, n characters; all when there are fewer, none when n is negative.
[[nodiscard]] std::string left(std::string_view text, std::ptrdiff_t n);
[[nodiscard]] std::string right(std::string_view text, std::ptrdiff_t n);
// n characters from the one numbered `start` (the first is 1); empty when start is outside.
[[nodiscard]] std::string mid(std::string_view text, std::ptrdiff_t start, std::ptrdiff_t n);
[[nodiscard]] std::string mid(std::string_view text, std::ptrdiff_t start);
// What a field of n characters keeps; a text that fits is handed on without a copy.
[[nodiscard]] std::string cut(std::string text, std::size_t n);

// Without the blanks at both ends; tabs and line ends stay. trimmed() is a view into its argument.
[[nodiscard]] std::string trim(std::string_view text);
[[nodiscard]] std::string_view trimmed(std::string_view text);

// The text with every broken sequence replaced by U+FFFD.
[[nodiscard]] std::string sanitize(std::string_view text);

}  // namespace text
