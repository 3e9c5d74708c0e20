#include "exam/exam_text.h"

#include "exam/exam_fields.h"
#include "exam/frm_exam.h"
#include "platform/text/number.h"
#include "shell/captions.h"
#include "shell/text_lookup.h"

namespace exam {

namespace {

class Composer {
 public:
  Composer(shell::Station& station, FrmExam& screen, const FieldText& textOf)
      : istasyon(station), screen_(screen), textOf_(textOf) {}

  std::vector<ReportLine> compose() {
    addAll(anamnesisFields());
    add(metinbul(istasyon, "olcumler"), measurements());
    addAll(examinationFields());
    addAll(specialFields());
    add(metinbul(istasyon, "riskfaktorleri"), risks());
    return std::move(lines_);
  }

 private:
  void add(const std::string& caption, std::string value) {
    if (!value.empty()) lines_.push_back({caption, std::move(value)});
  }

  void addAll(Rows rows) {
    for (const shell::FieldRow& row : rows) add(caption(row), value(row));
  }

  [[nodiscard]] const std::string& caption(const shell::FieldRow& row) const {
    return row.control(screen_).caption();
  }

  [[nodiscard]] std::string value(const shell::FieldRow& row) const {
    std::string held = textOf_(row);
    if (row.stored != shell::Stored::ListIndex) return held;
    const auto& items = static_cast<forms::ComboBox&>(row.control(screen_)).items();
    const auto index = text::wholeNumber(held).value_or(-1);
    const bool listed = index >= 0 && static_cast<std::size_t>(index) < items.size();
    return listed ? items[static_cast<std::size_t>(index)] : std::string();
  }

  // "Nabız 72 /dk, Tansiyon 120/80 mmHg, ..."
  [[nodiscard]] std::string measurements() const {
    std::string line;
    const auto join = [&](const std::string& word, const std::string& measured,
                          std::string_view unit) {
      if (measured.empty()) return;
      line.append(line.empty() ? "" : ", ").append(word + " " + measured + " ").append(unit);
    };
    const auto joinRow = [&](const shell::FieldRow& row) {
      join(caption(row), textOf_(row), unitOf(istasyon, row));
    };
    const MeasuredFields measured = measuredFields();
    joinRow(measured.pulse);
    const std::string systole = textOf_(measured.systole);
    const std::string diastole = textOf_(measured.diastole);
    if (!systole.empty() || !diastole.empty())
      join(metinbul(istasyon, "Tansiyon"), systole + "/" + diastole,
           unitOf(istasyon, measured.systole));
    joinRow(measured.fever);
    joinRow(measured.height);
    joinRow(measured.weight);
    return line;
  }

  [[nodiscard]] std::string risks() const {
    std::string line;
    for (const shell::FieldRow& row : riskFields()) {
      if (textOf_(row) == "1") line.append(line.empty() ? "" : ", ").append(caption(row));
    }
    return line;
  }

  shell::Station& istasyon;
  FrmExam& screen_;
  const FieldText& textOf_;
  std::vector<ReportLine> lines_;
};

}  // namespace

std::vector<ReportLine> reportLines(shell::Station& istasyon, FrmExam& screen,
                                    const FieldText& textOf) {
  return Composer(istasyon, screen, textOf).compose();
}

}  // namespace exam
