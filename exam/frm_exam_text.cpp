// The examination as a text, and all examinations of the patient as a document.
#include <algorithm>

#include "exam/exam_listing.h"
#include "exam/frm_exam.h"
#include "platform/text/utf8.h"
#include "shell/frm_progress.h"
#include "shell/text_lookup.h"
#include "shell/text_style.h"

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

richtext::Document FrmExam::Yazılar() {
  return belge(reportLines(istasyon, *this, [this](const auto& row) { return ekrandaki(row); }));
}

richtext::Document FrmExam::belge(const std::vector<ReportLine>& lines) {
  const auto write = [this](const std::string& text) {
    yazı.edit([&](richtext::Editor& editor) { editor.insert(text); });
  };
  for (const ReportLine& line : lines) {
    shell::secyazitipi(*this, yazı);
    write(line.caption + " : ");
    shell::yazitipiayarla(*this, yazı);
    write(line.value + "\n");
  }
  richtext::Document text = yazı.editor().document();
  yazı.edit([](richtext::Editor& editor) { editor.load({}); });
  return text;
}

void FrmExam::dokumeEkle(ExamListing& listing, const forms::ListItem& item) {
  if (!tablo().Seek("=", item.data) || tablo().NoMatch()) return;
  const std::string doctor = tablo().Fields("Doctor").text();
  listing.add(
      doctor.empty() ? item.text : item.text + "   " + doctor,
      belge(reportLines(istasyon, *this, [this](const auto& row) { return kayittaki(row); })));
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
  if (!written) return istasyon.host.runtimeError(written.error());
  durumYaz(written->filename().string());
  istasyon.host.shellOpen(written->string());
}

}  // namespace exam
