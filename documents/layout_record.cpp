#include "documents/layout_record.h"

#include <array>
#include <optional>
#include <string>

#include "platform/text/number.h"
#include "platform/text/utf8.h"

namespace documents {

namespace {

using files::SettingRecord;

constexpr std::size_t mostItems = (std::tuple_size_v<decltype(SettingRecord::numbers)> - 1) / 2;
constexpr std::ptrdiff_t fieldWidth = 50;

// Above the bits of the items; tells a layout without items from no layout at all.
constexpr unsigned written = 1U << mostItems;
constexpr unsigned bitOf(std::size_t item) {
  return 1U << item;
}

constexpr std::string_view marks = "bius";
constexpr std::array markMembers{&forms::Font::bold, &forms::Font::italic, &forms::Font::underline,
                                 &forms::Font::strikethrough};

// "12;bi;255;Arial": the name is last, since what is too long for the record loses its end.
std::string fontText(const forms::Font& font) {
  std::string text = std::to_string(font.size) + ";";
  for (std::size_t mark = 0; mark < marks.size(); ++mark) {
    if (font.*markMembers[mark]) text += marks[mark];
  }
  return text + ";" + std::to_string(forms::toBgr(font.colour)) + ";" + font.name;
}

std::string_view takePart(std::string_view& text) {
  const std::string_view part = text.substr(0, text.find(';'));
  text.remove_prefix(std::min(text.size(), part.size() + 1));
  return part;
}

std::optional<forms::Font> fontFrom(std::string_view text) {
  constexpr long largest = 1000;
  constexpr long white = 0xFFFFFF;
  const auto size = text::wholeNumber(takePart(text));
  const std::string_view style = takePart(text);
  const auto colour = text::wholeNumber(takePart(text));
  if (!size || !colour || *size < 0 || *size > largest || *colour < 0 || *colour > white)
    return std::nullopt;
  forms::Font font{.name = std::string(text), .size = static_cast<int>(*size)};
  for (std::size_t mark = 0; mark < marks.size(); ++mark)
    font.*markMembers[mark] = style.find(marks[mark]) != std::string_view::npos;
  font.colour = forms::fromBgr(static_cast<std::uint32_t>(*colour));
  return font;
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at))
    text.replace(at, from.size(), to);
}

// A field loses the blanks at its end, where the text may go on in the next one.
constexpr std::string_view hardBlank = "\u00A0";

// The fonts of all items that have one, a line each, over both fields.
void writeFonts(const PageLayout& layout, SettingRecord& record) {
  std::string lines;
  for (const LayoutItem& item : layout.items()) {
    if (item.hasFont()) lines += fontText(item.font) + '\n';
  }
  replaceAll(lines, " ", hardBlank);
  record.text1 = text::left(lines, fieldWidth);
  record.text2 = text::mid(lines, fieldWidth + 1, fieldWidth);
}

void readFonts(PageLayout& layout, const SettingRecord& record) {
  std::string joined = record.text1 + record.text2;
  replaceAll(joined, hardBlank, " ");
  std::string_view lines = joined;
  for (std::size_t item = 0; item < layout.items().size(); ++item) {
    if (!layout.items()[item].hasFont()) continue;
    const std::string_view line = lines.substr(0, lines.find('\n'));
    if (const auto font = fontFrom(line)) layout.setFont(item, *font);
    lines.remove_prefix(std::min(lines.size(), line.size() + 1));
  }
}

}  // namespace

void yerlesimOku(PageLayout& layout, const SettingRecord& record) {
  const auto bits = static_cast<unsigned>(record.numbers.back());
  if (record.numbers.back() < 0 || (bits & written) == 0) return;
  for (std::size_t item = 0; item < layout.items().size() && item < mostItems; ++item) {
    layout.move(item, record.numbers[2 * item], record.numbers[2 * item + 1]);
    layout.setShown(item, (bits & bitOf(item)) != 0);
  }
  readFonts(layout, record);
}

void yerlesimYaz(const PageLayout& layout, SettingRecord& record) {
  unsigned bits = written;
  for (std::size_t item = 0; item < layout.items().size() && item < mostItems; ++item) {
    const LayoutItem& stored = layout.items()[item];
    record.numbers[2 * item] = static_cast<std::int16_t>(stored.left);
    record.numbers[2 * item + 1] = static_cast<std::int16_t>(stored.top);
    if (stored.shown) bits |= bitOf(item);
  }
  record.numbers.back() = static_cast<std::int16_t>(bits);
  writeFonts(layout, record);
}

}  // namespace documents
