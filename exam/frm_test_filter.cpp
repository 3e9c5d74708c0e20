#include "exam/frm_test_filter.h"

#include <set>

#include "exam/frm_test.h"
#include "exam/patient_analyses.h"
#include "shell/captions.h"
#include "shell/text_lookup.h"

namespace exam {

FrmTestFilter::FrmTestFilter(shell::Station& station) : Form("frmtestfilter"), istasyon_(station) {
  buttamam.Click.connect([this] {
    if (VAnalizlerifiltrele()) istasyon_.host.close(*this);
  });
  Butİptal.Click.connect([this] { istasyon_.host.close(*this); });
}

void FrmTestFilter::Load() {
  basliklariyaz(istasyon_, *this);
  dpt1.setDate(istasyon_.clock.today());
  dpt2.setDate(istasyon_.clock.today());
  for (forms::CheckBox* const box : {&ChkYüksek, &ChkDüşük, &ChkNormal}) box->setValue(true);
  Testlistele();
}

void FrmTestFilter::Testlistele() {
  const auto analyses = hastaAnalizleri(istasyon_, istasyon_.SeciliHasta);
  if (!analyses || analyses->empty()) return Lsttest.clear();
  std::set<std::string> names;
  for (const stores::Analysis& analysis : *analyses) names.insert(analysis.test);
  Lsttest.setItems({});
  Lsttest.appendItems({names.begin(), names.end()});
  // Values without a date come first, and no day shows them.
  for (const stores::Analysis& analysis : *analyses) {
    if (analysis.date) return dpt1.setDate(*analysis.date);
  }
}

bool FrmTestFilter::VAnalizlerifiltrele() {
  const text::DateTime today = istasyon_.clock.today();
  const auto from = dpt1.date(today);
  const auto to = dpt2.date(today);
  if (!from || !to) {
    istasyon_.bilgi(metinbul(istasyon_, "msghatalitarih"));
    (from ? dpt2 : dpt1).setFocus();
    return false;
  }
  AnalysisFilter filter{.tests = {},
                        .from = *from,
                        .to = *to,
                        .high = ChkYüksek.value(),
                        .low = ChkDüşük.value(),
                        .normal = ChkNormal.value()};
  for (const forms::ListItem& item : Lsttest.items()) {
    if (item.selected) filter.tests.push_back(item.text);
  }
  if (hedef != nullptr) hedef->filtreliYaz(filter);
  return true;
}

}  // namespace exam
