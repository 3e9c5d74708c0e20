#include "shell/font_record.h"

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

}  // namespace

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

// While the stores are closed, whoever closed them opens this file with them.
bool ayarDosyasiAc(Station& istasyon) {
  if (istasyon.stores.settings || !istasyon.stores.personal.database.isOpen()) return false;
  auto file =
      files::RecordFile::open(istasyon.dosya("Data/setting.dat"), files::SettingRecord::length);
  if (!file) return false;
  istasyon.stores.settings = std::move(*file);
  return true;
}

platform::Result<files::SettingRecord> ayarKaydi(const Station& istasyon, int record) {
  if (!istasyon.stores.settings)
    return std::unexpected(
        platform::Status(platform::Fault::Missing, "Data/setting.dat is not open"));
  auto stored = istasyon.stores.settings->get(record);
  if (!stored) return std::unexpected(stored.error());
  return files::SettingRecord::decode(std::move(stored->buffer));
}

platform::Status ayarKaydiYaz(Station& istasyon, int record, const files::SettingRecord& content) {
  if (!istasyon.stores.settings) return {platform::Fault::Missing, "Data/setting.dat is not open"};
  return istasyon.stores.settings->put(record, content.encode());
}

void Setkayitlarioku(Station& istasyon, forms::Form& form, int record) {
  const auto stored = ayarKaydi(istasyon, record);
  if (stored && stored->owner == form.name()) form.setFont(fontOf(*stored));
}

platform::Status setkayityaz(Station& istasyon, const forms::Form& form, int record) {
  auto stored = ayarKaydi(istasyon, record);
  if (!stored) return stored.error();
  stored->owner = form.name();
  setFont(*stored, form.font());
  return ayarKaydiYaz(istasyon, record, *stored);
}

}  // namespace shell
