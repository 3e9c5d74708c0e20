#include "desktop/bind/rich_text_format.h"

#include "desktop/text.h"

namespace desktop {

namespace {

constexpr double twipsPerPixel = 15.0;

Qt::Alignment alignmentOf(richtext::Alignment alignment) {
  switch (alignment) {
    case richtext::Alignment::Right:
      return Qt::AlignRight;
    case richtext::Alignment::Centre:
      return Qt::AlignHCenter;
    case richtext::Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

QTextCharFormat::VerticalAlignment alignmentOf(richtext::Script script) {
  switch (script) {
    case richtext::Script::Super:
      return QTextCharFormat::AlignSuperScript;
    case richtext::Script::Sub:
      return QTextCharFormat::AlignSubScript;
    case richtext::Script::Normal:
      break;
  }
  return QTextCharFormat::AlignNormal;
}

}  // namespace

QTextCharFormat charFormat(const richtext::CharFormat& format) {
  QTextCharFormat chars;
  chars.setFontFamilies({qs(format.font)});
  chars.setFontPointSize(format.halfPoints / 2.0);
  chars.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
  chars.setFontItalic(format.italic);
  chars.setFontUnderline(format.underline);
  chars.setFontStrikeOut(format.strike);
  chars.setVerticalAlignment(alignmentOf(format.script));
  if (format.colour) chars.setForeground(QColor::fromRgb(*format.colour));
  return chars;
}

QTextBlockFormat blockFormat(const richtext::ParagraphFormat& format) {
  QTextBlockFormat block;
  block.setAlignment(alignmentOf(format.alignment));
  block.setLeftMargin(format.leftIndent / twipsPerPixel);
  block.setRightMargin(format.rightIndent / twipsPerPixel);
  block.setTextIndent(format.firstIndent / twipsPerPixel);
  return block;
}

}  // namespace desktop
