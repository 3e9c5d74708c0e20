// The patient finder.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// The filters in boxes by what they belong to; over them, after a search, the list of the patients.
// Enter searches, and opens the patient of the chosen row.
[[nodiscard]] std::unique_ptr<QWidget> findView(forms::Form& form);

}  // namespace desktop
