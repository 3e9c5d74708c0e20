#include "documents/layout_record.h"

#include <array>
#include <optional>
#include <string>

#include "platform/text/number.h"

namespace documents {

namespace {

using files::SettingRecord;

constexpr std::array fontFields{&SettingRecord::signature, &SettingRecord::text1,
                                &SettingRecord::text2};
constexpr std::size_t mostItems = std::tuple_size_v<decltype(SettingRecord::numbers)> / 2;

// Above the bits of the items; tells a layout without items from no layout at all.
constexpr unsigned written = 1U << mostItems;
constexpr unsigned bitOf(std::size_t item) {
  return 1U << item;
}

constexpr std::string_view marks = "bius";
constexpr std::array markMembers{&forms::Font::bold, &forms::Font::italic, &forms::Font::underline,
                                 &forms::Font::strikethrough};

// "12;bi;255;Arial": the name is last, since a field that is too narrow cuts its end.
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

// Calls with the numbers of the items that have a font, and with the field of each.
template <class Visit>
void eachFont(const PageLayout& layout, Visit visit) {
  std::size_t field = 0;
  for (std::size_t item = 0; item < layout.items().size() && field < fontFields.size(); ++item) {
    if (layout.items()[item].hasFont()) visit(item, fontFields[field++]);
  }
}

}  // namespace

void yerlesimOku(PageLayout& layout, const SettingRecord& record) {
  const auto bits = static_cast<unsigned>(record.templateNumber);
  if (record.templateNumber < 0 || (bits & written) == 0) return;
  for (std::size_t item = 0; item < layout.items().size() && item < mostItems; ++item) {
    layout.move(item, record.numbers[2 * item], record.numbers[2 * item + 1]);
    layout.setShown(item, (bits & bitOf(item)) != 0);
  }
  eachFont(layout, [&](std::size_t item, std::string SettingRecord::*field) {
    if (const auto font = fontFrom(record.*field)) layout.setFont(item, *font);
  });
}

void yerlesimYaz(const PageLayout& layout, SettingRecord& record) {
  unsigned bits = written;
  for (std::size_t item = 0; item < layout.items().size() && item < mostItems; ++item) {
    const LayoutItem& stored = layout.items()[item];
    record.numbers[2 * item] = static_cast<std::int16_t>(stored.left);
    record.numbers[2 * item + 1] = static_cast<std::int16_t>(stored.top);
    if (stored.shown) bits |= bitOf(item);
  }
  record.templateNumber = static_cast<std::int16_t>(bits);
  eachFont(layout, [&](std::size_t item, std::string SettingRecord::*field) {
    record.*field = fontText(layout.items()[item].font);
  });
}

}  // namespace documents
