// Combo boxes, with a text of their own or with the list only.
#pragma once

#include <QComboBox>

#include "desktop/bind/binding.h"
#include "platform/forms/text_control.h"

namespace desktop {

void bind(QComboBox& combo, forms::ComboBox& control);

}  // namespace desktop
