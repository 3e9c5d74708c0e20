// The examination of the tour: written out for a speciality, and never stored.
#pragma once

#include <QWidget>
#include <memory>
#include <string_view>

#include "desktop/qt_host.h"
#include "exam/frm_exam.h"

namespace desktop {

// The first patient of the practice with laboratory values.
[[nodiscard]] std::string patientWithResults(shell::Station& istasyon);

// Open from construction to destruction, for the patient on the card.
class SampleExam {
 public:
  // `program` is the name of the program's file that selects the speciality.
  SampleExam(QtHost& host, shell::Station& istasyon, std::string_view program);
  ~SampleExam();

  [[nodiscard]] exam::FrmExam& form() const { return *form_; }
  [[nodiscard]] QWidget& window() const { return *host_.windowOf(*form_); }

 private:
  void write();

  QtHost& host_;
  shell::Station& istasyon_;
  std::string programName_;
  std::unique_ptr<exam::FrmExam> form_;
};

}  // namespace desktop
