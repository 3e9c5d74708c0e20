// Internal: the patterns of "like".
#pragma once

#include <string_view>

#include "platform/dao/definition.h"

namespace dao {

// '*' any text, '?' any character, '#' a digit, "[a-z]" one of, "[!x]" none of; anything else
// itself. Case does not matter; the pairs of i follow the order. An unclosed '[' stands for itself.
[[nodiscard]] bool matchesPattern(std::string_view text, std::string_view pattern, Order order);

}  // namespace dao
