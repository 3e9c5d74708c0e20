#include "shell/text_style.h"

namespace shell {

namespace {

// A form without a font of its own leaves name and size as they are.
void apply(const forms::Form& form, forms::RichTextBox& text, bool bold) {
  const forms::Font& font = form.font();
  text.edit([&](richtext::Editor& editor) {
    richtext::CharFormat format = editor.typingFormat();
    if (!font.name.empty()) format.font = font.name;
    if (font.size > 0) format.halfPoints = 2 * font.size;
    format.bold = bold;
    format.italic = font.italic;
    format.underline = font.underline;
    format.strike = font.strikethrough;
    format.script = richtext::Script::Normal;
    format.colour = font.colour;
    editor.setSelFormat(format);
  });
}

}  // namespace

void secyazitipi(const forms::Form& form, forms::RichTextBox& text) {
  apply(form, text, true);
}

void yazitipiayarla(const forms::Form& form, forms::RichTextBox& text) {
  apply(form, text, form.font().bold);
}

}  // namespace shell
