// The words that the reader knows, in the order of their bytes. Words that are not here are
// ignored.
#include <algorithm>
#include <array>

#include "platform/richtext/rtf_interpreter.h"

namespace richtext {

const RtfInterpreter::Word* RtfInterpreter::findWord(std::string_view name) {
  using I = RtfInterpreter;
  constexpr int kBody = static_cast<int>(Target::Body);
  constexpr int kAside = static_cast<int>(Target::Aside);
  constexpr int kNormal = static_cast<int>(Script::Normal);
  constexpr int kSuper = static_cast<int>(Script::Super);
  constexpr int kSub = static_cast<int>(Script::Sub);
  constexpr int kSkipped = static_cast<int>(Target::Skipped);
  constexpr int kFonts = static_cast<int>(Target::Fonts);
  constexpr int kPlainFontName = static_cast<int>(Target::PlainFontName);
  constexpr int kColours = static_cast<int>(Target::Colours);
  constexpr int kListText = static_cast<int>(Target::ListText);
  constexpr int kLeft = static_cast<int>(Alignment::Left);
  constexpr int kRight = static_cast<int>(Alignment::Right);
  constexpr int kCentre = static_cast<int>(Alignment::Centre);
  constexpr int kRed = static_cast<int>(RtfColours::Part::Red);
  constexpr int kGreen = static_cast<int>(RtfColours::Part::Green);
  constexpr int kBlue = static_cast<int>(RtfColours::Part::Blue);
  static constexpr auto kWords = std::to_array<Word>({
      {"aftncn", &I::onTarget, kSkipped},
      {"aftnsep", &I::onTarget, kSkipped},
      {"aftnsepc", &I::onTarget, kSkipped},
      {"annotation", &I::onTarget, kSkipped},
      {"ansicpg", &I::onDocumentCodePage, 0},
      {"b", &I::onBold, 0},
      {"blue", &I::onColourPart, kBlue},
      {"bullet", &I::onCharacter, 0x2022},
      {"cell", &I::onCell, 0},
      {"cf", &I::onColour, 0},
      {"colortbl", &I::onTarget, kColours},
      {"column", &I::onBreak, 0},
      {"cpg", &I::onFontCodePage, 0},
      {"deff", &I::onDefaultFont, 0},
      {"deleted", &I::onHidden, 0},
      {"dn", &I::onRaise, kSub},
      {"do", &I::onTarget, kBody},
      {"dptxbxtext", &I::onTarget, kAside},
      {"emdash", &I::onCharacter, 0x2014},
      {"emspace", &I::onCharacter, 0x2003},
      {"endash", &I::onCharacter, 0x2013},
      {"enspace", &I::onCharacter, 0x2002},
      {"f", &I::onFont, 0},
      {"fcharset", &I::onFontCharset, 0},
      {"fi", &I::onFirstIndent, 0},
      {"filetbl", &I::onTarget, kSkipped},
      {"fldinst", &I::onTarget, kSkipped},
      {"fname", &I::onTarget, kPlainFontName},
      {"fonttbl", &I::onTarget, kFonts},
      {"footer", &I::onTarget, kSkipped},
      {"footerf", &I::onTarget, kSkipped},
      {"footerl", &I::onTarget, kSkipped},
      {"footerr", &I::onTarget, kSkipped},
      {"footnote", &I::onTarget, kAside},
      {"fs", &I::onSize, 0},
      {"ftncn", &I::onTarget, kSkipped},
      {"ftnsep", &I::onTarget, kSkipped},
      {"ftnsepc", &I::onTarget, kSkipped},
      {"green", &I::onColourPart, kGreen},
      {"header", &I::onTarget, kSkipped},
      {"headerf", &I::onTarget, kSkipped},
      {"headerl", &I::onTarget, kSkipped},
      {"headerr", &I::onTarget, kSkipped},
      {"i", &I::onItalic, 0},
      {"info", &I::onTarget, kSkipped},
      {"ldblquote", &I::onCharacter, 0x201C},
      {"li", &I::onLeftIndent, 0},
      {"line", &I::onParagraph, 0},
      {"listtext", &I::onTarget, kListText},
      {"lquote", &I::onCharacter, 0x2018},
      {"ltrmark", &I::onCharacter, 0x200E},
      {"mac", &I::onDocumentCodePage, 10000},
      {"nestcell", &I::onCell, 0},
      {"nestrow", &I::onRow, 0},
      {"nesttableprops", &I::onTarget, kBody},
      {"nonesttables", &I::onTarget, kSkipped},
      {"nonshppict", &I::onTarget, kSkipped},
      {"nosupersub", &I::onScript, kNormal},
      {"objalias", &I::onTarget, kSkipped},
      {"objclass", &I::onTarget, kSkipped},
      {"objdata", &I::onTarget, kSkipped},
      {"objname", &I::onTarget, kSkipped},
      {"objsect", &I::onTarget, kSkipped},
      {"page", &I::onBreak, 0},
      {"par", &I::onParagraph, 0},
      {"pard", &I::onParagraphDefaults, 0},
      {"pc", &I::onDocumentCodePage, 437},
      {"pca", &I::onDocumentCodePage, 850},
      {"pict", &I::onTarget, kSkipped},
      {"plain", &I::onPlain, 0},
      {"pntext", &I::onTarget, kListText},
      {"private1", &I::onTarget, kSkipped},
      {"qc", &I::onAlignment, kCentre},
      {"qj", &I::onAlignment, kLeft},
      {"ql", &I::onAlignment, kLeft},
      {"qmspace", &I::onCharacter, 0x2005},
      {"qr", &I::onAlignment, kRight},
      {"rdblquote", &I::onCharacter, 0x201D},
      {"red", &I::onColourPart, kRed},
      {"result", &I::onTarget, kAside},
      {"revtbl", &I::onTarget, kSkipped},
      {"ri", &I::onRightIndent, 0},
      {"row", &I::onRow, 0},
      {"rquote", &I::onCharacter, 0x2019},
      {"rtlmark", &I::onCharacter, 0x200F},
      {"rxe", &I::onTarget, kSkipped},
      {"sect", &I::onBreak, 0},
      {"shpinst", &I::onTarget, kBody},
      {"shprslt", &I::onTarget, kSkipped},
      {"shptxt", &I::onTarget, kAside},
      {"sn", &I::onTarget, kSkipped},
      {"sp", &I::onTarget, kSkipped},
      {"strike", &I::onStrike, 0},
      {"striked", &I::onStrike, 0},
      {"stylesheet", &I::onTarget, kSkipped},
      {"sub", &I::onScript, kSub},
      {"super", &I::onScript, kSuper},
      {"sv", &I::onTarget, kSkipped},
      {"tab", &I::onCharacter, U'\t'},
      {"tc", &I::onTarget, kSkipped},
      {"tcn", &I::onTarget, kSkipped},
      {"txe", &I::onTarget, kSkipped},
      {"u", &I::onUnicode, 0},
      {"uc", &I::onFallbackLength, 0},
      {"ul", &I::onUnderline, 0},
      {"uld", &I::onUnderline, 0},
      {"uldash", &I::onUnderline, 0},
      {"uldashd", &I::onUnderline, 0},
      {"uldashdd", &I::onUnderline, 0},
      {"uldb", &I::onUnderline, 0},
      {"ulhwave", &I::onUnderline, 0},
      {"ulldash", &I::onUnderline, 0},
      {"ulnone", &I::onNoUnderline, 0},
      {"ulth", &I::onUnderline, 0},
      {"ulthd", &I::onUnderline, 0},
      {"ulthdash", &I::onUnderline, 0},
      {"ulthdashd", &I::onUnderline, 0},
      {"ulthdashdd", &I::onUnderline, 0},
      {"ulthldash", &I::onUnderline, 0},
      {"ululdbwave", &I::onUnderline, 0},
      {"ulw", &I::onUnderline, 0},
      {"ulwave", &I::onUnderline, 0},
      {"up", &I::onRaise, kSuper},
      {"v", &I::onHidden, 0},
      {"xe", &I::onTarget, kSkipped},
      {"zwbo", &I::onCharacter, 0x200B},
      {"zwj", &I::onCharacter, 0x200D},
      {"zwnj", &I::onCharacter, 0x200C},
  });
  static_assert(std::ranges::is_sorted(kWords, {}, &Word::name));
  const auto* found = std::ranges::lower_bound(kWords, name, {}, &Word::name);
  return found != kWords.end() && found->name == name ? found : nullptr;
}

}  // namespace richtext
