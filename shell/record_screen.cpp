#include "shell/record_screen.h"

#include <algorithm>

#include "platform/dao/database.h"
#include "platform/text/fold.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/snapshot.h"
#include "shell/text_lookup.h"

namespace shell {

RecordScreen::RecordScreen(Station& station, std::string_view name)
    : Form(name), istasyon(station) {
  mnuyeni.setShortcut("Ctrl+N");
  mnukaydet.setShortcut("Ctrl+S");
  mnukaydet.Click.connect([this] { Kaydet(); });
  mnusil.Click.connect([this] { Sil(); });
}

void RecordScreen::alanlariBagla() {
  for (const FieldRow& row : alanlar()) {
    kontrol(row).Change.connect([this] { tuskontrol(); });
    auto* const combo = dynamic_cast<forms::ComboBox*>(&kontrol(row));
    if (combo != nullptr) combo->Click.connect([this] { tuskontrol(); });
  }
}

void RecordScreen::alanGenislikleri(const dao::Database& database, std::string_view table) {
  const auto columns = database.fields(table);
  for (const FieldRow& row : alanlar()) {
    if (row.stored != Stored::Text) continue;
    if (row.cut > 0) kontrol(row).setMaxLength(static_cast<std::size_t>(row.cut));
    if (row.cut > 0 || !columns) continue;
    const auto column = std::ranges::find_if(*columns, [&](const dao::FieldInfo& info) {
      return text::equalsNoCase(info.name, row.column);
    });
    if (column != columns->end()) kontrol(row).setMaxLength(static_cast<std::size_t>(column->size));
  }
}

void RecordScreen::alanlariYukle() {
  for (const FieldRow& row : alanlar()) {
    const dao::Field stored = tablo().Fields(row.column);
    if (row.stored == Stored::Text) kontrol(row).setText(text::trimmed(stored.text()));
    if (row.stored == Stored::ListIndex) {
      const auto index = text::wholeNumber(stored.text());
      auto& combo = static_cast<forms::ComboBox&>(kontrol(row));
      index ? combo.setListIndex(static_cast<int>(*index)) : combo.setText("");
    }
  }
}

void RecordScreen::alanlaribosalt() {
  for (const FieldRow& row : alanlar()) kontrol(row).setText("");
  etkinlestir(mnuyeni, "New", false);
  etkinlestir(mnukaydet, "Save", false);
  etkinlestir(mnusil, "Delete", false);
}

std::string RecordScreen::YeniAlanlar() {
  std::string texts;
  for (const FieldRow& row : alanlar()) texts += kontrol(row).text();
  return texts;
}

void RecordScreen::Eskialan() {
  yedek() = YeniAlanlar();
  etkinlestir(mnukaydet, "Save", false);
}

void RecordScreen::tuskontrol() {
  etkinlestir(mnukaydet, "Save", kaydedilebilir() && YeniAlanlar() != yedek());
  etkinlestir(mnuyeni, "New", !bosMu(*this));
}

bool RecordScreen::kayitkontrol() {
  if (!mnukaydet.enabled()) return true;
  const auto question = eskiAnahtar().empty() ? "msgkayityapilsinmi" : "msgdegisiklikyapilsinmi";
  if (!istasyon.evetMi(metinbul(istasyon, question))) return true;
  mnukaydet.Click();
  return !mnukaydet.enabled();
}

dao::Status RecordScreen::Forumalanlaritasi() {
  dao::Status first;
  for (const FieldRow& row : alanlar()) {
    const dao::Status moved = alaniTasi(row);
    if (!moved && first) first = moved;
  }
  return first;
}

dao::Status RecordScreen::alaniTasi(const FieldRow& row) {
  forms::TextControl& field = kontrol(row);
  if (row.stored == Stored::Screen) return {};
  if (row.stored == Stored::ListIndex) {
    return tablo()
        .Fields(row.column)
        .Set(std::to_string(static_cast<forms::ComboBox&>(field).listIndex()));
  }
  const std::string trimmed = text::trim(field.text());
  return tablo().Fields(row.column).Set(row.cut > 0 ? text::left(trimmed, row.cut) : trimmed);
}

void RecordScreen::etkinlestir(forms::MenuItem& entry, std::string_view button, bool enabled) {
  entry.setEnabled(enabled);
  tbToolBar.setButtonEnabled(button, enabled);
}

std::string RecordScreen::sisim(std::string_view name) {
  return std::string(name.substr(0, name.find_last_not_of('*') + 1));
}

}  // namespace shell
