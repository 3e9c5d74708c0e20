// The single-byte Turkish code page 1254, in which the fixed-record files keep their texts.
#pragma once

#include <string>
#include <string_view>

namespace text {

// Bytes to UTF-8. The seven bytes without a character become the control characters of the same
// number, so that every byte survives a round trip.
[[nodiscard]] std::string fromTurkishCodePage(std::string_view bytes);

// UTF-8 to bytes, one per character; a character that the code page lacks becomes '?'.
[[nodiscard]] std::string toTurkishCodePage(std::string_view text);

}  // namespace text
