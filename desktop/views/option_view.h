// The Options screen.
#pragma once

#include <QWidget>
#include <memory>

#include "shell/frm_option.h"

namespace desktop {

[[nodiscard]] std::unique_ptr<QWidget> optionView(forms::Form& form);

// Its three pages.
[[nodiscard]] QWidget* settingsPage(shell::FrmOption& form, QWidget& parent);
[[nodiscard]] QWidget* listsPage(shell::FrmOption& form, QWidget& parent);
[[nodiscard]] QWidget* letterheadPage(shell::FrmOption& form, QWidget& parent);

}  // namespace desktop
