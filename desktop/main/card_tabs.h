// The card's tabs and their fields.
#pragma once

#include <QWidget>

#include "registry/frm_main.h"

namespace desktop {

[[nodiscard]] QWidget* cardTabs(registry::FrmMain& form, QWidget& parent);

}  // namespace desktop
