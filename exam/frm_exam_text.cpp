// The examination as a text, and all examinations of the patient as a document.
#include <algorithm>

#include "exam/exam_listing.h"
#include "exam/frm_exam.h"
#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/frm_progress.h"
#include "shell/text_lookup.h"

namespace exam {

namespace {

constexpr std::size_t recordsOfSlice = 20;

}  // namespace

// What a field would store if the record were saved now.
std::string FrmExam::ekrandaki(const shell::FieldRow& row) {
  forms::Control& field = row.control(*this);
  if (row.stored == shell::Stored::Mark)
    return static_cast<forms::CheckBox&>(field).value() ? "1" : "0";
  if (row.stored == shell::Stored::ListIndex)
    return std::to_string(static_cast<forms::ComboBox&>(field).listIndex());
  return text::trim(kontrol(row).text());
}

std::string FrmExam::kayittaki(const shell::FieldRow& row) {
  const bool elsewhere =
      row.stored == shell::Stored::Screen && &row.control(*this) != &boyunAlani();
  return elsewhere ? std::string() : text::trim(tablo().Fields(row.column).text());
}

void FrmExam::Yazılar(documents::ReportText& yazı) {
  const auto shown = [this](const shell::FieldRow& row) { return ekrandaki(row); };
  for (const ReportLine& line : reportLines(istasyon, *this, shown))
    yazı.alan(line.caption, line.value);
}

void FrmExam::dokumeEkle(ExamListing& listing, const forms::ListItem& item) {
  if (!tablo().Seek("=", item.data) || tablo().NoMatch()) return;
  const auto stored = [this](const shell::FieldRow& row) { return kayittaki(row); };
  documents::ReportText record(font());
  for (const ReportLine& line : reportLines(istasyon, *this, stored))
    record.alan(line.caption, line.value);
  const std::string doctor = tablo().Fields("Doctor").text();
  listing.add(doctor.empty() ? item.text : item.text + "   " + doctor, record.document());
}

// The records are those that are stored, whatever is on the screen. A listing that was stopped
// leaves no file.
void FrmExam::dokumYaz() {
  ExamListing listing(sisim(lblisim.caption()), font());
  const auto dates = liste.items();
  std::size_t next = 0;
  shell::surdurerekYap(
      istasyon, {metinbul(istasyon, "muayenedokumu"), static_cast<std::int64_t>(dates.size()),
                 [&]() -> std::optional<std::int64_t> {
                   if (next == dates.size()) return std::nullopt;
                   for (const std::size_t end = std::min(next + recordsOfSlice, dates.size());
                        next < end; ++next) {
                     dokumeEkle(listing, dates[next]);
                   }
                   return static_cast<std::int64_t>(next);
                 }});
  if (next == dates.size()) dokumuSakla(listing);
}

void FrmExam::dokumuSakla(ExamListing& listing) {
  const auto written = listing.write(istasyon);
  if (!written) return shell::hataSoyle(istasyon, written.error());
  durumYaz(written->filename().string());
  istasyon.host.shellOpen(written->string());
}

}  // namespace exam
