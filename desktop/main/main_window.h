// The patient card.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// The window of registry::FrmMain.
[[nodiscard]] std::unique_ptr<QWidget> mainWindow(forms::Form& form);

}  // namespace desktop
