// The examination as a text, and all examinations of the patient as a document.
#include "exam/exam_listing.h"
#include "exam/frm_exam.h"
#include "platform/text/utf8.h"
#include "shell/text_style.h"

namespace exam {

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

void FrmExam::dokumYaz() {
  ExamListing listing(sisim(lblisim.caption()), font());
  for (const forms::ListItem& item : liste.items()) {
    if (!tablo().Seek("=", item.data) || tablo().NoMatch()) continue;
    const std::string doctor = tablo().Fields("Doctor").text();
    listing.add(
        doctor.empty() ? item.text : item.text + "   " + doctor,
        belge(reportLines(istasyon, *this, [this](const auto& row) { return kayittaki(row); })));
  }
  const auto written = listing.write(istasyon);
  if (!written) return istasyon.host.runtimeError(written.error());
  durumYaz(written->filename().string());
  istasyon.host.shellOpen(written->string());
}

}  // namespace exam
