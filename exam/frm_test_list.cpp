// The grid of a patient's laboratory values, and the screens that it opens.
#include <ranges>

#include "exam/frm_test.h"
#include "exam/frm_test_edit.h"
#include "exam/frm_test_filter.h"
#include "exam/frm_test_trend.h"
#include "exam/patient_analyses.h"
#include "exam/result_mark.h"
#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace exam {

using shell::Phrase;

namespace {

// "126 H mg/dL   (70 - 105)".
std::string valueLine(const stores::Analysis& analysis) {
  std::string line = text::trim(isaretli(analysis.result, analysis.min, analysis.max));
  if (!analysis.unit.empty()) line += " " + analysis.unit;
  const std::string range = aralik(analysis.min, analysis.max);
  return range.empty() ? line : line + "   (" + range + ")";
}

}  // namespace

void FrmTest::basliklariYenile() {
  RecordScreen::basliklariYenile();
  // The two ends of a range have no word in the vocabulary.
  txtmin.setCaption("Min");
  txtmax.setCaption("Max");
  msgrid1.setToolTip(phrase(istasyon, Phrase::NoResults));
  const auto word = [this](std::string_view key) { return metinbul(istasyon, key); };
  msgrid1.setHeadings(std::vector<std::string>{word("Tarih"), word("Test"), word("sonuc"),
                                               word("Birim"), "Min", "Max"});
}

FrmTest::Analyses FrmTest::hastaninAnalizleri() {
  auto analyses = hastaAnalizleri(istasyon, lblisim.caption());
  if (!analyses) durumYaz(shell::kisaNedeni(istasyon, analyses.error()));
  toplam_ = analyses ? analyses->size() : 0;
  return std::move(analyses).value_or(Analyses());
}

void FrmTest::VAnalizleriyaz() {
  const Analyses analyses = hastaninAnalizleri();
  numaralariYaz(analyses);
  gridiDoldur(analyses);
}

void FrmTest::filtreliYaz(const AnalysisFilter& filter) {
  if (!kayitkontrol()) return;
  txtcount.text().empty() ? alanlaribosalt() : bugundenBasla();
  Analyses analyses = hastaninAnalizleri();
  std::erase_if(analyses, [&](const stores::Analysis& each) { return !testUyar(filter, each); });
  numaralariYaz(analyses);
  std::erase_if(analyses, [&](const stores::Analysis& each) { return !uyar(filter, each); });
  gridiDoldur(analyses);
}

void FrmTest::numaralariYaz(const Analyses& analyses) {
  std::vector<forms::ListItem> numbers;
  for (const stores::Analysis& analysis : analyses)
    numbers.push_back({std::to_string(analysis.number), analysis.number});
  Lstkn.setItems(std::move(numbers));
}

void FrmTest::gridiDoldur(Analyses analyses) {
  analizler_ = std::move(analyses);
  {
    const forms::Grid::Bulk once(msgrid1);
    msgrid1.setRows(msgrid1.fixedRows());
    msgrid1.setRows(msgrid1.fixedRows() + static_cast<int>(analizler_.size()));
    int row = msgrid1.fixedRows();
    for (const stores::Analysis& analysis : analizler_) gridSatiri(row++, analysis);
  }
  const std::string shown = std::to_string(analizler_.size());
  sbDurum.setPanel(2, shown + " / " + std::to_string(toplam_) + " " + metinbul(istasyon, "sonuc"));
  gridkontrol();
}

void FrmTest::gridSatiri(int row, const stores::Analysis& analysis) {
  const std::string marked = isaretli(analysis.result, analysis.min, analysis.max);
  const std::string date = analysis.date ? text::shortDate(*analysis.date) : std::string();
  const std::string number = std::to_string(analysis.number);
  const std::string_view cells[result_column::count] = {
      date, analysis.test, marked, analysis.unit, analysis.min, analysis.max, number};
  for (int column = 0; column < result_column::count; ++column)
    msgrid1.setTextMatrix(row, column, cells[column]);
  msgrid1.setEmphasis(row, result_column::result, vurgu(marked));
  msgrid1.setRowData(row, analysis.number);
}

void FrmTest::gridkontrol() {
  etkinlestir(mnutestfiltrele, "filtre", toplam_ > 0);
  mnutümü.setEnabled(toplam_ > 0);
  const bool any = !analizler_.empty();
  etkinlestir(mnugrafik, "grafik", any);
  mnuonizleme.setEnabled(any);
  etkinlestir(mnuyazdır, "Print", any);
}

void FrmTest::satirSecildi() {
  const long number = msgrid1.rowData(msgrid1.Row());
  if (number == 0 || std::to_string(number) == txtcount.text()) return;
  if (!kayitkontrol()) return msgrid1.dropChoice();
  if (!alanlaritasi(number)) return durumYaz(phrase(istasyon, Phrase::RecordGone));
  satiriGoster(number);
}

// A save on the way may have given the grid other rows.
void FrmTest::satiriGoster(long number) {
  for (int row = msgrid1.fixedRows(); row < msgrid1.rows(); ++row) {
    if (msgrid1.rowData(row) == number && msgrid1.rowData(msgrid1.Row()) != number)
      return msgrid1.setRow(row);
  }
}

// The first sheet has the latest days.
void FrmTest::Yazılar(documents::ReportText& yazı) {
  std::optional<text::DateTime> day;
  yazı.secyazitipi();
  yazı.yaz(metinbul(istasyon, "testsonuclari") + "\n");
  for (const stores::Analysis& analysis : std::views::reverse(analizler_)) {
    if (analysis.date != day) yazı.secyazitipi();
    if (analysis.date && analysis.date != day)
      yazı.yaz("\n" + text::shortDate(*analysis.date) + "\n");
    day = analysis.date;
    yazı.alan(analysis.test, valueLine(analysis));
  }
}

// --- The screens above this one

bool FrmTest::tusBas(std::string_view key) {
  if (key == "filtre") return mnutestfiltrele.press(), true;
  if (key == "grafik") return mnugrafik.press(), true;
  if (key == "testler") return mnutestdüzenle.press(), true;
  return RecordScreen::tusBas(key);
}

void FrmTest::filtreAc() {
  FrmTestFilter filter(istasyon);
  filter.hedef = this;
  filter.Load();
  istasyon.host.showModal(filter);
}

void FrmTest::grafikAc() {
  FrmTestTrend trend(istasyon);
  trend.comtest.setText(msgrid1.Row() > 0 ? msgrid1.TextMatrix(msgrid1.Row(), result_column::test)
                                          : text::trim(comtest.text()));
  trend.Load();
  istasyon.host.showModal(trend);
}

void FrmTest::testDuzenleAc() {
  FrmTestEdit catalogue(istasyon);
  catalogue.Load();
  istasyon.host.showModal(catalogue);
  Testlistele();
}

}  // namespace exam
