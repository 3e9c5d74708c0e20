// The print wizard of prescriptions.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// The miniature sheet at the left; at the right the properties of its items with the list of what
// is printed, and the patients below them.
[[nodiscard]] std::unique_ptr<QWidget> prescriptionWizardView(forms::Form& form);

}  // namespace desktop
