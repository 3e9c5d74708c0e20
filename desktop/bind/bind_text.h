// Text boxes of one line and of several.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/bind/binding.h"
#include "platform/forms/text_control.h"

namespace desktop {

void bind(QLineEdit& edit, forms::TextBox& box);
void bind(QPlainTextEdit& edit, forms::TextBox& box);

// The line edit shows the control's text and selection, and tells it what is typed; the owner
// attaches the rest.
void refreshLine(QLineEdit& edit, const forms::TextControl& control, forms::Aspect aspect);
void listenToLine(Binding& binding, QLineEdit& edit, forms::TextControl& control);

}  // namespace desktop
