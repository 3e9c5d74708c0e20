// Buttons, check boxes and option buttons.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "desktop/bind/binding.h"
#include "platform/forms/button.h"

namespace desktop {

void bind(QPushButton& button, forms::CommandButton& control);
// A small button that may stand beside a field with an icon instead of its caption.
void bind(QToolButton& button, forms::CommandButton& control);
void bind(QCheckBox& box, forms::CheckBox& control);
void bind(QRadioButton& button, forms::OptionButton& control);

}  // namespace desktop
