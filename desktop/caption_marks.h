// Alt and a letter reach the fields, as they reach the menus.
#pragma once

#include <QWidget>

namespace desktop {

// Marks a letter of its own in every caption that stands before a field and can be seen, beside
// those of the menu bar. The words may have changed since the last time, so this is done when Alt
// goes down.
void markCaptions(QWidget& window);

}  // namespace desktop
