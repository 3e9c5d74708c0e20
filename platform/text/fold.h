// Upper and lower case, and comparison of names without regard to case. None depends on the
// process locale; bytes that are not UTF-8 have no case and stay.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

// Unicode's root mapping: i and ı become I.
[[nodiscard]] std::string upper(std::string_view text);
// Unicode's root mapping: I becomes i; İ becomes i with a dot above.
[[nodiscard]] std::string lower(std::string_view text);
// Turkish upper case: i becomes İ, ı becomes I, the rest as upper().
[[nodiscard]] std::string upperTurkish(std::string_view text);
// The same for tight loops: the result is written over `capitals`, whose memory is used again. The
// text may not view into it.
void upperInto(std::string& capitals, std::string_view text);
void upperTurkishInto(std::string& capitals, std::string_view text);

// Names of fields, tables and settings: i equals I, while İ and ı equal only themselves.
[[nodiscard]] bool equalsNoCase(std::string_view a, std::string_view b);
// The same for names that equalsNoCase; continues from `seed` to hash several names as one key.
[[nodiscard]] std::size_t hashNoCase(std::string_view name, std::size_t seed = 0);

}  // namespace text
