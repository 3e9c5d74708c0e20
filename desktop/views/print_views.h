// The windows around printing.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

[[nodiscard]] std::unique_ptr<QWidget> prewiveView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> preview1View(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> printerView(forms::Form& form);
[[nodiscard]] std::unique_ptr<QWidget> patternView(forms::Form& form);

}  // namespace desktop
