#include "documents/layout_record.h"

#include <array>
#include <optional>
#include <string>

#include "platform/text/nearest.h"
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

// Instead of a name that is the one before it.
constexpr std::string_view sameName = "\"";

// "12;bi;255;Arial"; black goes without its number.
std::string fontText(const forms::Font& font, std::string_view name) {
  std::string text = std::to_string(font.size) + ";";
  for (std::size_t mark = 0; mark < marks.size(); ++mark) {
    if (font.*markMembers[mark]) text += marks[mark];
  }
  text += ";";
  if (font.colour != 0) text += std::to_string(forms::toBgr(font.colour));
  return text.append(";").append(name);
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
  const std::string_view number = takePart(text);
  const auto colour = number.empty() ? 0 : text::wholeNumber(number);
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

// The fonts of all items that have one, a line each; the first `named` of them with their names.
std::string fontLines(const PageLayout& layout, std::size_t named) {
  std::string lines;
  std::string before;
  for (const LayoutItem& item : layout.items()) {
    if (!item.hasFont()) continue;
    if (!lines.empty()) lines += '\n';
    const std::string name = named > 0 ? text::nearestTurkish(item.font.name) : "";
    if (named > 0) --named;
    lines += fontText(item.font, !name.empty() && name == before ? sameName : name);
    before = name;
  }
  replaceAll(lines, " ", hardBlank);
  return lines;
}

// Over both fields. Where they have no room for all names the last ones are left out: half a name
// is another font's.
void writeFonts(const PageLayout& layout, SettingRecord& record) {
  std::size_t named = layout.items().size();
  std::string lines = fontLines(layout, named);
  while (named > 0 && text::length(lines) > std::size_t{2} * fieldWidth)
    lines = fontLines(layout, --named);
  record.text1 = text::left(lines, fieldWidth);
  record.text2 = text::mid(lines, fieldWidth + 1, fieldWidth);
}

void readFonts(PageLayout& layout, const SettingRecord& record) {
  std::string joined = record.text1 + record.text2;
  replaceAll(joined, hardBlank, " ");
  std::string_view lines = joined;
  std::string before;
  for (std::size_t item = 0; item < layout.items().size(); ++item) {
    if (!layout.items()[item].hasFont()) continue;
    const std::string_view line = lines.substr(0, lines.find('\n'));
    if (auto font = fontFrom(line)) {
      if (font->name == sameName) font->name = before;
      before = font->name;
      layout.setFont(item, *font);
    }
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

std::vector<std::size_t> unkeptFonts(const PageLayout& layout) {
  SettingRecord record;
  yerlesimYaz(layout, record);
  PageLayout read = layout;
  yerlesimOku(read, SettingRecord::decode(record.encode()));
  std::vector<std::size_t> lost;
  for (std::size_t item = 0; item < layout.items().size(); ++item) {
    if (read.items()[item].font != layout.items()[item].font) lost.push_back(item);
  }
  return lost;
}

}  // namespace documents
