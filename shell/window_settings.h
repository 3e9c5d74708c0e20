// Where and how large a window was, kept in the settings under a section and a name: the keys are
// the name followed by " Width", " Height" and " WindowState".
#pragma once

#include <string_view>

#include "shell/station.h"

namespace shell {

// A size that is no size, or that was never kept, leaves the form as it is. `missing` is the state
// of a window that was never kept.
void pencereOku(Station& istasyon, forms::Form& form, std::string_view section,
                std::string_view name, forms::WindowState missing = forms::WindowState::Normal);

// A minimised window keeps what was kept before; a maximised one keeps its normal size.
platform::Status pencereYaz(Station& istasyon, const forms::Form& form, std::string_view section,
                            std::string_view name);

}  // namespace shell
