#include "exam/frm_demand.h"

#include "exam/frm_drug.h"
#include "platform/text/utf8.h"
#include "shell/phrases.h"
#include "shell/record_date.h"
#include "shell/text_lookup.h"

namespace exam {

namespace {
constexpr const char* letterheadNameAndDate = "3";
}

FrmDemand::FrmDemand(shell::Station& station) : TestCatalogueScreen(station, "frmdemand") {
  lblisim.setVisible(false);
  tusGrubu({"New", "Save", "Delete"});
  if (istasyon.screens.has("frmprewive")) tusGrubu({"Print"});
  tbToolBar.addButton("Exit", "Exit");
  baski.lblsablonno.setCaption(letterheadNameAndDate);
  txtistem.Change.connect([this] { tuskontrol(); });
  buttasi.Click.connect([this] { istemetestekle(); });
  Lsttest.DblClick.connect([this] { istemetestekle(); });
  buttamam.Click.connect([this] { aktar(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmDemand::Load() {
  lblisim.setCaption(istasyon.SeciliHasta);
  lblhasta.setCaption(shell::hastaBandi(istasyon, istasyon.SeciliHasta));
  TestCatalogueScreen::Load();
  tuskontrol();
}

void FrmDemand::tuskontrol() {
  TestCatalogueScreen::tuskontrol();
  buttasi.setEnabled(!text::trimmed(txttest.text()).empty());
  mnuonizleme.setEnabled(!txtistem.text().empty());
  etkinlestir(mnuyazdır, "Print", !txtistem.text().empty());
}

// A test that the catalogue does not have may be requested all the same, and does not come into the
// catalogue by that.
void FrmDemand::istemetestekle() {
  const std::string test = text::trim(txttest.text());
  if (test.empty()) return;
  const bool there = txtistem.text().find(test) != std::string::npos;
  if (there && !istasyon.evetMi(test + metinbul(istasyon, "msgtestoncedenyazildi"))) return;
  if (!eskiAnahtar().empty() && !kayitkontrol()) return;
  const std::string before = txtistem.text().empty() ? "" : txtistem.text() + ", ";
  txtistem.setText(before + test);
  alanlaribosalt();
}

// A composed request goes with the window.
bool FrmDemand::mayEscape() {
  const bool composed = !txtistem.text().empty();
  return (!composed || istasyon.confirmLoss(phrase(istasyon, shell::Phrase::LoseTyped))) &&
         TestCatalogueScreen::mayEscape();
}

void FrmDemand::Yazılar(documents::ReportText& yazı) {
  yazı.secyazitipi();
  yazı.yaz(metinbul(istasyon, "istem") + "\n\n");
  yazı.yazitipiayarla();
  yazı.yaz(txtistem.text());
}

void FrmDemand::aktar() {
  istasyon.AktarilanMetin = kabulEdilen(txtistem.text());
  istasyon.host.close(*this);
}

}  // namespace exam
