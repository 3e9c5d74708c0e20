#include "desktop/bind/bind_rich_text.h"

namespace desktop {

void bind(RichTextEdit& edit, forms::RichTextBox& box) {
  Binding& binding = attach(edit, box, Follow::All, [&edit](forms::Aspect aspect) {
    if (aspect == forms::Aspect::Text) edit.refresh();
    if (aspect == forms::Aspect::Selection) edit.refreshSelection();
  });
  edit.setBox(box, binding);
}

}  // namespace desktop
