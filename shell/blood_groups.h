// The blood groups, as cards store them.
#pragma once

#include <array>

namespace shell {

inline constexpr std::array bloodGroups{"0 Rh(+)", "0 Rh(-)", "A Rh(+)",  "A Rh(-)",
                                        "B Rh(+)", "B Rh(-)", "AB Rh(+)", "AB Rh(-)"};

}  // namespace shell
