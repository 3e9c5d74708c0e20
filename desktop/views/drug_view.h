// The drug catalogue at the left, the drug in the middle, the prescription at the right.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

std::unique_ptr<QWidget> drugView(forms::Form& form);

}  // namespace desktop
