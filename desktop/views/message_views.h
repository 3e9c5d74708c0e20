// Messages between the stations: the board, the writing of one, and the choice of what is shown.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

[[nodiscard]] std::unique_ptr<QWidget> messagesView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> messageView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> messageSettingsView(forms::Form& form);

}  // namespace desktop
