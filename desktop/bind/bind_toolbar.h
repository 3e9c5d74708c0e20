// Toolbars and tab strips.
#pragma once

#include <QTabBar>
#include <QToolBar>

#include "desktop/bind/binding.h"
#include "platform/forms/menu.h"

namespace desktop {

// One action per button, whose object name is the button's key. Separators with nothing on one side
// are not shown. The bar of a window has words under its images, and a menu that switches them.
void bind(QToolBar& bar, forms::Toolbar& control);
void bind(QTabBar& bar, forms::TabStrip& control);

}  // namespace desktop
