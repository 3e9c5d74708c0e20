// Right of the card: the specialities or the practice's picture, and today's examinations.
#pragma once

#include <QWidget>

#include "registry/frm_main.h"

namespace desktop {

[[nodiscard]] QWidget* sidePanels(registry::FrmMain& form, QWidget& parent);

}  // namespace desktop
