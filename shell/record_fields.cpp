// The fields of a record screen: how they are loaded, stored, cleared and compared.
#include <algorithm>
#include <utility>

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

std::string RecordScreen::shownText(const FieldRow& row) {
  return row.stored == Stored::Mark ? saklanan(row) : row.control(*this).snapshotText();
}

std::string RecordScreen::YeniAlanlar() {
  std::string texts;
  for (const FieldRow& row : alanlar()) texts += shownText(row);
  return texts;
}

void RecordScreen::Eskialan() {
  yedek() = YeniAlanlar();
  saved_.clear();
  for (const FieldRow& row : alanlar()) saved_.push_back(shownText(row));
  etkinlestir(mnukaydet, "Save", false);
  if (std::exchange(stateTold_, false)) durumYaz({});
}

std::size_t RecordScreen::rowOf(const forms::Control& field) {
  const auto rows = alanlar();
  const auto row = std::ranges::find_if(
      rows, [&](const FieldRow& each) { return &each.control(*this) == &field; });
  return static_cast<std::size_t>(row - rows.begin());
}

std::string RecordScreen::savedText(const forms::Control& field) {
  const std::size_t row = rowOf(field);
  return row < saved_.size() ? saved_[row] : std::string();
}

bool RecordScreen::fieldChanged(const forms::Control& field) {
  return shownText(alanlar()[rowOf(field)]) != savedText(field);
}

bool RecordScreen::anyFieldChanged(const forms::Control* except) {
  return std::ranges::any_of(alanlar(), [&](const FieldRow& row) {
    const forms::Control& field = row.control(*this);
    return &field != except && fieldChanged(field);
  });
}

// The fields stand at the front of every snapshot, one behind the other.
void RecordScreen::setSavedText(const forms::Control& field, std::string text) {
  const std::size_t row = rowOf(field);
  if (row >= saved_.size()) return;
  std::size_t place = 0;
  for (std::size_t before = 0; before < row; ++before) place += saved_[before].size();
  yedek().replace(place, saved_[row].size(), text);
  saved_[row] = std::move(text);
}

bool RecordScreen::temizlenebilir() {
  return !bosMu(*this);
}

void RecordScreen::tuskontrol() {
  letGo_ = false;
  etkinlestir(mnukaydet, "Save", kaydedilebilir() && YeniAlanlar() != yedek());
  yeniEtkin(temizlenebilir());
  tellState();
}

// Changes that are not saved, or why they cannot be; the line is left to others when there is
// neither.
void RecordScreen::tellState() {
  const bool told = stateTold_;
  stateTold_ = mnukaydet.enabled() || (!kaydedilebilir() && hasTypedText());
  if (mnukaydet.enabled()) return durumYaz(phrase(istasyon, Phrase::StateChanged));
  if (stateTold_ || told) durumYaz(stateTold_ ? neededToSave() : std::string());
}

bool RecordScreen::kayitkontrol() {
  unanswered_ = !mnukaydet.enabled() && !mayLoseTyped();
  if (!mnukaydet.enabled()) return !unanswered_;
  const auto question = eskiAnahtar().empty() ? "msgkayityapilsinmi" : "msgdegisiklikyapilsinmi";
  const host::Answer answer = istasyon.askAboutText(metinbul(istasyon, question));
  unanswered_ = answer == host::Answer::Cancel;
  if (answer != host::Answer::Yes) return !unanswered_;
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

// A number that the list does not have shows as nothing; it stays until a row is chosen.
bool RecordScreen::staysAsStored(const FieldRow& row) {
  if (row.stored != Stored::ListIndex) return false;
  const auto& combo = static_cast<const forms::ComboBox&>(row.control(*this));
  const auto stored = text::wholeNumber(tablo().Fields(row.column).text());
  return combo.text().empty() && stored && std::cmp_less_equal(combo.items().size(), *stored);
}

dao::Status RecordScreen::alaniTasi(const FieldRow& row) {
  if (row.stored == Stored::Screen || staysAsStored(row)) return {};
  return tablo().Fields(row.column).Set(saklanan(row));
}

}  // namespace shell
