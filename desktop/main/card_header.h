// Top of the card: name, birth and sex.
#pragma once

#include <QWidget>

#include "registry/frm_main.h"

namespace desktop {

[[nodiscard]] QWidget* cardHeader(registry::FrmMain& form, QWidget& parent);

}  // namespace desktop
