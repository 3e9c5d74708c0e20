// Formats of rich texts in the toolkit's terms.
#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include "platform/richtext/paragraph.h"

namespace desktop {

[[nodiscard]] QTextCharFormat charFormat(const richtext::CharFormat& format);
[[nodiscard]] QTextBlockFormat blockFormat(const richtext::ParagraphFormat& format);

}  // namespace desktop
