// Keystrokes in the notation of the screens.
#pragma once

#include <string_view>

namespace desktop {

// Types into the widget that has the focus: "^" is Ctrl, "+" Shift, "%" Alt, names stand in braces.
// The four keystrokes of undo and the clipboard are sent as the toolkit's own, whatever keys the
// desk uses for them.
void typeKeys(std::string_view keys);

}  // namespace desktop
