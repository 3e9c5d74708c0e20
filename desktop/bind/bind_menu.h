// The menu bar of a form, from the tree of its entries.
#pragma once

#include <QMenuBar>

#include "platform/forms/form.h"

namespace desktop {

// Builds the menus of all entries without a parent, in their order. Mnemonics are unique within
// each menu, and separators that stand first, last or double are not shown.
void bindMenus(QMenuBar& bar, const forms::Form& form);

}  // namespace desktop
