// The picture archive: six places on the left, the chosen picture large beside them.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

// The form is an images::FrmPicture.
[[nodiscard]] std::unique_ptr<QWidget> pictureView(forms::Form& form);

}  // namespace desktop
