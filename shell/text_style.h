// The style in which a record's report is written: the form's font, bold for headings.
#pragma once

#include "platform/forms/form.h"
#include "platform/forms/rich_text_box.h"

namespace shell {

// The style of the selection, or of what is inserted next, from the form's font: bold forced on.
void secyazitipi(const forms::Form& form, forms::RichTextBox& text);
// With the form's own bold.
void yazitipiayarla(const forms::Form& form, forms::RichTextBox& text);

}  // namespace shell
