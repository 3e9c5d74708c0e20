// A window for any form, from its controls in their order.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// Menus, toolbar and status bar at their places; tabs over their panels; fields with captions, in
// two columns where there is room; buttons in a row at the bottom.
[[nodiscard]] std::unique_ptr<QWidget> genericView(forms::Form& form);

}  // namespace desktop
