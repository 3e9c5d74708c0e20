// The photograph in its full size, panned with two scroll bars.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// Shows the first picture of the form; its first scroll bar pans sideways, its second one up and
// down.
[[nodiscard]] std::unique_ptr<QWidget> photoView(forms::Form& form);

}  // namespace desktop
