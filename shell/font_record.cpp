#include "shell/font_record.h"

#include "platform/files/setting_record.h"
#include "platform/text/number.h"

namespace shell {

namespace {

// A record may hold anything: what is no colour is black.
forms::Colour colourOf(const std::string& decimal) {
  const auto number = text::wholeNumber(decimal);
  return number && *number >= 0 && *number <= 0xFFFFFF
             ? forms::fromBgr(static_cast<std::uint32_t>(*number))
             : 0;
}

forms::Font fontOf(const files::SettingRecord& record) {
  return {.name = record.fontName,
          .size = record.fontSize,
          .bold = record.bold,
          .italic = record.italic,
          .underline = record.underline,
          .strikethrough = record.strikethrough,
          .colour = colourOf(record.colour)};
}

void setFont(files::SettingRecord& record, const forms::Font& font) {
  record.fontName = font.name;
  record.fontSize = static_cast<std::int16_t>(font.size);
  record.bold = font.bold;
  record.italic = font.italic;
  record.underline = font.underline;
  record.strikethrough = font.strikethrough;
  record.colour = std::to_string(forms::toBgr(font.colour));
}

}  // namespace

void Setkayitlarioku(Station& istasyon, forms::Form& form, int record) {
  if (!istasyon.stores.settings) return;
  const auto stored = istasyon.stores.settings->get(record);
  if (!stored) return;
  const files::SettingRecord decoded = files::SettingRecord::decode(stored->buffer);
  if (decoded.owner == form.name()) form.setFont(fontOf(decoded));
}

platform::Status setkayityaz(Station& istasyon, const forms::Form& form, int record) {
  if (!istasyon.stores.settings) return {platform::Fault::Missing, "Data/setting.dat is not open"};
  const auto stored = istasyon.stores.settings->get(record);
  if (!stored) return stored.error();
  files::SettingRecord decoded = files::SettingRecord::decode(stored->buffer);
  decoded.owner = form.name();
  setFont(decoded, form.font());
  return istasyon.stores.settings->put(record, decoded.encode());
}

}  // namespace shell
