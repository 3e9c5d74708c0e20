// The fields of a record screen: how they are loaded, stored, cleared and compared.
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/phrases.h"
#include "shell/record_screen.h"
#include "shell/snapshot.h"
#include "shell/text_lookup.h"

namespace shell {

bool RecordScreen::alanlaritasi(const dao::Value& key) {
  if (!tablo().Seek("=", key) || tablo().NoMatch()) return false;
  alanlariYukle();
  kayitYuklendi();
  Eskialan();
  yeniEtkin(true);
  etkinlestir(mnusil, "Delete", true);
  durumYaz({});
  return true;
}

void RecordScreen::alanlariYukle() {
  for (const FieldRow& row : alanlar()) alaniYukle(row);
}

void RecordScreen::alaniYukle(const FieldRow& row) {
  const std::string stored(text::trim(tablo().Fields(row.column).text()));
  switch (row.stored) {
    case Stored::Text:
    case Stored::Amount:
      return kontrol(row).setText(stored);
    case Stored::Mark:
      return static_cast<forms::CheckBox&>(row.control(*this)).setValue(stored == "1");
    case Stored::ListIndex: {
      auto& combo = static_cast<forms::ComboBox&>(row.control(*this));
      const auto index = text::wholeNumber(stored);
      return index ? combo.setListIndex(static_cast<int>(*index)) : combo.setText("");
    }
    case Stored::Screen:
      return;
  }
}

void RecordScreen::alanlaribosalt() {
  for (const FieldRow& row : alanlar()) {
    forms::Control& control = row.control(*this);
    if (row.stored == Stored::Mark) {
      static_cast<forms::CheckBox&>(control).setValue(false);
    } else if (auto* const field = dynamic_cast<forms::TextControl*>(&control)) {
      field->setText("");
    }
  }
  yeniEtkin(false);
  etkinlestir(mnukaydet, "Save", false);
  etkinlestir(mnusil, "Delete", false);
}

std::string RecordScreen::YeniAlanlar() {
  std::string texts;
  for (const FieldRow& row : alanlar()) {
    texts += row.stored == Stored::Mark ? saklanan(row) : row.control(*this).snapshotText();
  }
  return texts;
}

void RecordScreen::Eskialan() {
  yedek() = YeniAlanlar();
  etkinlestir(mnukaydet, "Save", false);
}

bool RecordScreen::temizlenebilir() {
  return !bosMu(*this);
}

void RecordScreen::tuskontrol() {
  const bool wasChanged = mnukaydet.enabled();
  etkinlestir(mnukaydet, "Save", kaydedilebilir() && YeniAlanlar() != yedek());
  yeniEtkin(temizlenebilir());
  if (mnukaydet.enabled()) return durumYaz(phrase(istasyon, Phrase::StateChanged));
  if (wasChanged) durumYaz({});
}

bool RecordScreen::kayitkontrol() {
  if (!mnukaydet.enabled()) return true;
  const auto question = eskiAnahtar().empty() ? "msgkayityapilsinmi" : "msgdegisiklikyapilsinmi";
  const host::Answer answer = istasyon.askAboutText(metinbul(istasyon, question));
  if (answer != host::Answer::Yes) return answer == host::Answer::No;
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

// What of a field goes into its column.
std::string RecordScreen::saklanan(const FieldRow& row) {
  if (row.stored == Stored::Mark)
    return static_cast<forms::CheckBox&>(row.control(*this)).value() ? "1" : "0";
  if (row.stored == Stored::ListIndex)
    return std::to_string(static_cast<forms::ComboBox&>(row.control(*this)).listIndex());
  const std::string trimmed = text::trim(kontrol(row).text());
  if (const auto amount = row.stored == Stored::Amount ? text::number(trimmed) : std::nullopt) {
    // A number too long for its column stays as it was typed.
    const std::string written = text::amount(*amount);
    const std::size_t room = kontrol(row).maxLength();
    return room == 0 || written.size() <= room ? written : trimmed;
  }
  return row.cut > 0 ? text::left(trimmed, row.cut) : trimmed;
}

dao::Status RecordScreen::alaniTasi(const FieldRow& row) {
  if (row.stored == Stored::Screen) return {};
  return tablo().Fields(row.column).Set(saklanan(row));
}

}  // namespace shell
