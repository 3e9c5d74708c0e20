// The status line: date, time, what was done last, station, speciality and folder.
#pragma once

#include <QStatusBar>

#include "registry/frm_main.h"

namespace desktop {

[[nodiscard]] QStatusBar* mainStatus(registry::FrmMain& form, QWidget& parent);

}  // namespace desktop
