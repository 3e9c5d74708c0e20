// How a laboratory value stands to its reference range.
#pragma once

#include <string>
#include <string_view>

#include "platform/forms/grid.h"

namespace exam {

// The result with its mark: " L" below the range, " H" above it. One that ends in a digit gets
// three blanks instead, so that all have the same tail. Numbers are read at the start of the texts,
// with a point; an empty end of the range does not count.
[[nodiscard]] std::string isaretli(std::string_view result, std::string_view min,
                                   std::string_view max);

// What the mark at the end says.
[[nodiscard]] forms::Emphasis vurgu(std::string_view marked);

// A number that was typed with a decimal comma, with a point, since the marks read it so; any other
// text as it is.
[[nodiscard]] std::string noktali(std::string_view typed);

}  // namespace exam
