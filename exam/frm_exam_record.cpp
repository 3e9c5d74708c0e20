// The record of the examination: what is peculiar to its load, save, new and date.
#include <algorithm>

#include "exam/exam_fields.h"
#include "exam/frm_exam.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/doctors.h"
#include "shell/phrases.h"

namespace exam {

namespace {

constexpr auto neckColumn = "Physical Exam6";

}  // namespace

void FrmExam::alanlaribosalt() {
  DatedRecordScreen::alanlaribosalt();
  tasinanlariAl();
  bosHali_ = RecordScreen::YeniAlanlar();
  sayfaSec(sonSayfa());
  mnuonizleme.setEnabled(false);
  etkinlestir(mnuyazdır, "Print", false);
}

void FrmExam::kayitYuklendi() {
  boyunAlani().setText(text::trimmed(tablo().Fields(neckColumn).text()));
  DatedRecordScreen::kayitYuklendi();
}

dao::Status FrmExam::Forumalanlaritasi() {
  const dao::Status moved = DatedRecordScreen::Forumalanlaritasi();
  const dao::Status neck = tablo().Fields(neckColumn).Set(text::trim(boyunAlani().text()));
  return moved ? neck : moved;
}

void FrmExam::Muayenebul() {
  const auto number = text::wholeNumber(txtnumara.text());
  if (number) alanlaritasi(*number);
}

// Vital signs alone are no record, and neither is another date on what was carried over.
bool FrmExam::kaydedilebilir() {
  const bool untouched = eskiAnahtar().empty() && RecordScreen::YeniAlanlar() == bosHali_;
  return !untouched && DatedRecordScreen::kaydedilebilir() &&
         std::ranges::any_of(contentFields(calisma_.frame),
                             [this](const shell::FieldRow& row) { return dolu(row); });
}

bool FrmExam::dolu(const shell::FieldRow& row) {
  if (row.stored == shell::Stored::Mark)
    return static_cast<forms::CheckBox&>(row.control(*this)).value();
  return !text::trimmed(kontrol(row).text()).empty();
}

std::vector<std::string> FrmExam::missing() {
  return {phrase(istasyon, shell::Phrase::BesideVitalSigns)};
}

// What was carried over from another record was not typed.
bool FrmExam::hasTypedText() {
  const bool untouched = eskiAnahtar().empty() && RecordScreen::YeniAlanlar() == bosHali_;
  return !untouched && DatedRecordScreen::hasTypedText();
}

bool FrmExam::temizlenebilir() {
  return DatedRecordScreen::temizlenebilir() ||
         std::ranges::any_of(riskFields(),
                             [this](const shell::FieldRow& row) { return dolu(row); });
}

void FrmExam::listelereEkle() {
  shell::doktorEkle(istasyon, comdoktor.text());
}

// A changed record is stored without a question before another one is shown. One that was never
// stored would be lost, or come into being unnoticed: that is asked.
bool FrmExam::secimdenOnce() {
  if (eskiAnahtar().empty() || !mnukaydet.enabled()) return kayitkontrol();
  mnukaydet.Click();
  return !mnukaydet.enabled();
}

void FrmExam::listeDegisti() {
  mnumuayenedökümü.setEnabled(liste.count() > 0);
}

// --- A record that is dated back

// A day that has a record shows it. A new record between others goes on from the one before it.
void FrmExam::tarihBitti() {
  if (!eskiAnahtar().empty()) return;
  const auto row = std::ranges::find(liste.items(), txttarih.text(), &forms::ListItem::text);
  if (row != liste.items().end())
    return liste.setListIndex(static_cast<int>(row - liste.items().begin()));
  const auto date = txttarih.date(bugun());
  const auto before = date ? onundeki(*date) : std::nullopt;
  if (before) oncekindenTasi(*before);
}

// The last record of the list before that day.
std::optional<std::int64_t> FrmExam::onundeki(const text::DateTime& date) const {
  std::optional<std::int64_t> number;
  for (const forms::ListItem& item : liste.items()) {
    const auto day = text::parseDate(item.text, date);
    if (day && *day < date) number = item.data;
  }
  return number;
}

// What the user has changed meanwhile stays.
void FrmExam::oncekindenTasi(std::int64_t number) {
  if (!tablo().Seek("=", number) || tablo().NoMatch()) return;
  const bool untouched = RecordScreen::YeniAlanlar() == bosHali_;
  const Rows rows = datedBackFields();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (kontrol(rows[i]).text() == tasinan_.at(i)) alaniYukle(rows[i]);
  }
  tasinanlariAl();
  if (untouched) bosHali_ = RecordScreen::YeniAlanlar();
  tuskontrol();
}

void FrmExam::tasinanlariAl() {
  std::ranges::transform(datedBackFields(), tasinan_.begin(),
                         [this](const shell::FieldRow& row) { return kontrol(row).text(); });
}

}  // namespace exam
