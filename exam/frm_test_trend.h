// One laboratory test of the patient over time.
#pragma once

#include <vector>

#include "exam/trend_plot.h"
#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/label.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace exam {

class FrmTestTrend : public forms::Form {
 public:
  explicit FrmTestTrend(shell::Station& istasyon);

  forms::Label lblhasta{*this, "lblhasta"};
  // The tests of which the patient has values. What stands here before Load is shown first; else
  // the test with the most values.
  forms::ComboBox comtest{*this, "comtest", forms::ComboStyle::ListOnly};
  forms::Label lbldeger{*this, "lbldeger"};  // the point that is pointed at
  TrendPlot plot{*this, "plot"};
  forms::Label lblatlanan{*this, "lblatlanan"};  // the values that are not drawn
  forms::CommandButton butkapat{*this, "butkapat"};

  void Load() override;

 private:
  void testleriListele();
  void goster();
  void degeriYaz();
  [[nodiscard]] std::string atlananlar() const;

  shell::Station& istasyon_;
  std::vector<stores::Analysis> analizler_;
};

}  // namespace exam
