// Small dialogs: birthdays, password, hidden names, progress, about.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

[[nodiscard]] std::unique_ptr<QWidget> birthdayView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> passwordView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> hiddenNamesView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> progressView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> careView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> aboutView(forms::Form& form);

}  // namespace desktop
