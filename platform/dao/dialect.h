// Internal: the select texts of the screens, in the words of the engine.
#pragma once

#include <string>
#include <string_view>

namespace dao {

[[nodiscard]] bool isSelect(std::string_view text);

// Texts in double quotes become literals where a value stands and stay names where a name stands;
// left(...) becomes a call. Everything else is understood as it is.
[[nodiscard]] std::string translated(std::string_view text);

}  // namespace dao
