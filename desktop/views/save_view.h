// The backup screen.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

[[nodiscard]] std::unique_ptr<QWidget> saveView(forms::Form& form);

}  // namespace desktop
