// Rich texts.
#pragma once

#include "desktop/bind/binding.h"
#include "desktop/bind/rich_text_edit.h"

namespace desktop {

void bind(RichTextEdit& edit, forms::RichTextBox& box);

}  // namespace desktop
