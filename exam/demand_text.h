// The text of a request as it is composed and handed over.
#pragma once

#include <string>
#include <string_view>

namespace exam {

// With the test's name behind what is there.
[[nodiscard]] std::string istemeEklenmis(std::string_view request, std::string_view test);

// As the calling screen gets it: a line end followed by two blanks is dropped.
[[nodiscard]] std::string aktarilan(std::string_view text);

}  // namespace exam
