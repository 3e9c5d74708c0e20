#include "platform/richtext/rtf_writer.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/richtext/code_pages.h"
#include "platform/richtext/utf8.h"

namespace richtext {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

using TurkishBytes = std::map<char32_t, unsigned char>;

const TurkishBytes& turkishBytes() {
  static const TurkishBytes kBytes = [] {
    CodePages pages;
    TurkishBytes bytes;
    for (unsigned value = 0xFF; value >= 0x80; --value) {
      const char byte = static_cast<char>(value);
      std::string utf8;
      pages.decode(kTurkishCodePage, {&byte, 1}, utf8);
      bytes[toCodePoints(utf8).front()] = static_cast<unsigned char>(value);
    }
    return bytes;
  }();
  return kBytes;
}

std::string hexByte(unsigned value) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return {'\\', '\'', kDigits[value >> 4U], kDigits[value & 0xFU]};
}

std::string unit(char32_t value) {
  const int number = static_cast<int>(value);
  return "\\u" + std::to_string(number > 0x7FFF ? number - 0x10000 : number) + '?';
}

void appendAscii(char byte, std::string& result) {
  if (byte == '\t') {
    result += "\\tab ";
    return;
  }
  if (byte == '\\' || byte == '{' || byte == '}') result += '\\';
  result += byte;
}

void appendOther(char32_t character, std::string& result) {
  const auto known = turkishBytes().find(character);
  if (known != turkishBytes().end()) {
    result += hexByte(known->second);
  } else if (character > 0xFFFF) {
    result += unit(0xD800 + ((character - 0x10000) >> 10U));
    result += unit(0xDC00 + ((character - 0x10000) & 0x3FFU));
  } else {
    result += unit(character);
  }
}

std::string escaped(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    const bool ascii = static_cast<unsigned char>(text[offset]) < 0x80;
    const std::size_t size = ascii ? 1 : byteOffset(text.substr(offset, 4), 1);
    if (ascii) {
      appendAscii(text[offset], result);
    } else {
      appendOther(toCodePoints(text.substr(offset, size)).front(), result);
    }
    offset += size;
  }
  return result;
}

class Writer {
 public:
  std::string write(const Document& document) {
    for (const Paragraph& paragraph : document.paragraphs()) writeParagraph(paragraph);
    return head() + body_ + '}' + std::string(kLineEnd);
  }

 private:
  std::string head() const {
    std::string head = "{\\rtf1\\ansi\\ansicpg1254\\deff0\\deflang1055{\\fonttbl";
    for (std::size_t i = 0; i < fontNames_.size(); ++i) head += fontEntry(i);
    head += '}';
    head += kLineEnd;
    if (!colourValues_.empty()) head += colourTable();
    return head + "\\viewkind4\\uc1";
  }

  // A semicolon would end the name.
  std::string fontEntry(std::size_t index) const {
    std::string name = fontNames_[index];
    std::erase(name, ';');
    return "{\\f" + std::to_string(index) + "\\fnil\\fcharset162 " + escaped(name) + ";}";
  }

  std::string colourTable() const {
    std::string table = "{\\colortbl ;";
    for (const std::uint32_t colour : colourValues_)
      table += "\\red" + std::to_string(colour >> 16U & 0xFFU) + "\\green" +
               std::to_string(colour >> 8U & 0xFFU) + "\\blue" + std::to_string(colour & 0xFFU) +
               ';';
    return table + '}' + std::string(kLineEnd);
  }

  void writeParagraph(const Paragraph& paragraph) {
    std::string words;
    if (paragraph.format != paragraph_) words = paragraphWords(paragraph.format);
    if (paragraph.format.mark == ListMark::Bullet) words += "{\\pntext\\f0\\'B7\\tab}";
    paragraph_ = paragraph.format;
    for (const Run& run : paragraph.runs) writeRun(run, std::exchange(words, {}));
    body_ += "\\par";
    body_ += kLineEnd;
  }

  // A blank parts the last word from text behind it; behind a group it would be text itself.
  void writeRun(const Run& run, std::string words) {
    words += formatWords(run.format);
    body_ += words;
    const bool endsInWord = !words.empty() && words.back() != '}';
    if (endsInWord && !run.text.empty()) body_ += ' ';
    body_ += escaped(run.text);
    format_ = run.format;
  }

  static std::string paragraphWords(const ParagraphFormat& format) {
    std::string words = "\\pard";
    if (format.mark == ListMark::Bullet)
      words += "{\\*\\pn\\pnlvlblt\\pnf0\\pnindent0{\\pntxtb\\'B7}}";
    if (format.firstIndent != 0) words += "\\fi" + std::to_string(format.firstIndent);
    if (format.leftIndent != 0) words += "\\li" + std::to_string(format.leftIndent);
    if (format.rightIndent != 0) words += "\\ri" + std::to_string(format.rightIndent);
    if (format.alignment == Alignment::Right) words += "\\qr";
    if (format.alignment == Alignment::Centre) words += "\\qc";
    return words;
  }

  static const char* scriptWord(Script script) {
    if (script == Script::Normal) return "\\nosupersub";
    return script == Script::Super ? "\\super" : "\\sub";
  }

  // Only what differs from the format before.
  std::string formatWords(const CharFormat& format) {
    std::string words;
    const auto toggle = [&words](bool before, bool now, const char* on, const char* off) {
      if (before != now) words += now ? on : off;
    };
    const CharFormat before = format_.value_or(CharFormat());
    if (format.colour != before.colour) words += "\\cf" + std::to_string(numberOf(format.colour));
    toggle(before.bold, format.bold, "\\b", "\\b0");
    toggle(before.italic, format.italic, "\\i", "\\i0");
    toggle(before.underline, format.underline, "\\ul", "\\ulnone");
    toggle(before.strike, format.strike, "\\strike", "\\strike0");
    if (format.script != before.script) words += scriptWord(format.script);
    if (!format_ || format.font != before.font)
      words += "\\f" + std::to_string(numberOf(format.font));
    if (!format_ || format.halfPoints != before.halfPoints)
      words += "\\fs" + std::to_string(format.halfPoints);
    return words;
  }

  std::size_t numberOf(const std::string& font) {
    const auto [entry, added] = fonts_.try_emplace(font, fontNames_.size());
    if (added) fontNames_.push_back(font);
    return entry->second;
  }

  // The automatic colour is the table's first, empty entry.
  std::size_t numberOf(const Colour& colour) {
    if (!colour) return 0;
    const auto [entry, added] = colours_.try_emplace(*colour, colourValues_.size() + 1);
    if (added) colourValues_.push_back(*colour);
    return entry->second;
  }

  std::map<std::string, std::size_t> fonts_;
  std::vector<std::string> fontNames_;
  std::map<std::uint32_t, std::size_t> colours_;
  std::vector<std::uint32_t> colourValues_;
  std::optional<CharFormat> format_;
  ParagraphFormat paragraph_;
  std::string body_;
};

}  // namespace

std::string writeRtf(const Document& document) {
  return Writer().write(document);
}

}  // namespace richtext
