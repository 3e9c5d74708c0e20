#include "exam/frm_test_trend.h"

#include <algorithm>
#include <map>

#include "exam/patient_analyses.h"
#include "platform/text/number.h"
#include "shell/captions.h"
#include "shell/phrases.h"
#include "shell/record_date.h"

namespace exam {

using shell::Phrase;

FrmTestTrend::FrmTestTrend(shell::Station& station) : Form("frmtesttrend"), istasyon_(station) {
  comtest.Click.connect([this] { goster(); });
  plot.Change.connect([this] { degeriYaz(); });
  butkapat.Click.connect([this] { istasyon_.host.close(*this); });
}

void FrmTestTrend::Load() {
  basliklariyaz(istasyon_, *this);
  setCaption(phrase(istasyon_, Phrase::Trend));
  plot.setCaption(caption());
  plot.setToolTip(phrase(istasyon_, Phrase::NoTrend));
  lblhasta.setCaption(shell::hastaBandi(istasyon_, istasyon_.SeciliHasta));
  analizler_ =
      hastaAnalizleri(istasyon_, istasyon_.SeciliHasta).value_or(std::vector<stores::Analysis>());
  testleriListele();
  plot.setFocus();
}

void FrmTestTrend::testleriListele() {
  std::map<std::string, int> counts;
  for (const stores::Analysis& analysis : analizler_) ++counts[analysis.test];
  const std::string wanted = comtest.text();
  std::vector<std::string> names;
  for (const auto& [name, count] : counts) names.push_back(name);
  comtest.setItems(std::move(names));
  if (counts.empty()) return goster();
  const auto most =
      std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
  comtest.setListIndex(comtest.rowOf(counts.contains(wanted) ? wanted : most->first));
  goster();
}

void FrmTestTrend::goster() {
  plot.setTrend(seyir(analizler_, comtest.text()));
  lblatlanan.setCaption(atlananlar());
}

std::string FrmTestTrend::atlananlar() const {
  const Trend& trend = plot.trend();
  std::string text;
  if (trend.withoutNumber > 0)
    text = phrase(istasyon_, Phrase::NotDrawnWithoutNumber) + std::to_string(trend.withoutNumber);
  if (trend.otherUnit > 0)
    text.append(text.empty() ? "" : "   ·   ")
        .append(phrase(istasyon_, Phrase::NotDrawnOtherUnit))
        .append(std::to_string(trend.otherUnit));
  return text;
}

// "22.11.2026: 126 H mg/dL (70 - 105)".
void FrmTestTrend::degeriYaz() {
  const Trend& trend = plot.trend();
  if (plot.chosen() < 0) return lbldeger.setCaption("");
  const TrendPoint& point = trend.points[static_cast<std::size_t>(plot.chosen())];
  std::string text = text::shortDate(point.date) + ":  " + point.result + " " + trend.unit;
  if (trend.min || trend.max)
    text.append("   (")
        .append(trend.min ? text::plainText(*trend.min) : "")
        .append(" - ")
        .append(trend.max ? text::plainText(*trend.max) : "")
        .append(")");
  lbldeger.setCaption(text);
}

}  // namespace exam
