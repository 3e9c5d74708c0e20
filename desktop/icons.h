// Pictures of buttons and menu entries, from the icon theme that is installed.
#pragma once

#include <QIcon>
#include <string_view>

namespace desktop {

// Finds the theme in the system's data folders, also without a desktop session; the dark one for a
// dark palette.
void useIconTheme(bool dark);

// The icon of a name of the program's image lists; empty for a name that has none.
[[nodiscard]] QIcon icon(std::string_view image);

}  // namespace desktop
