#include "exam/frm_demand.h"

#include <algorithm>

#include "platform/text/utf8.h"
#include "shell/phrases.h"
#include "shell/record_date.h"
#include "shell/text_lookup.h"

namespace exam {

namespace {
constexpr const char* letterheadNameAndDate = "3";
}

FrmDemand::FrmDemand(shell::Station& station)
    : TestCatalogueScreen(station, "frmdemand",
                          {Completion::WhileTyping, forms::ListChoice::Several}) {
  lblisim.setVisible(false);
  tusGrubu({"New", "Save", "Delete"});
  if (istasyon.screens.has("frmprewive")) tusGrubu({"Print"});
  tbToolBar.addButton("Exit", "Exit");
  baski.lblsablonno.setCaption(letterheadNameAndDate);
  txtistem.Change.connect([this] { tuskontrol(); });
  buttasi.Click.connect([this] { istemetestekle(); });
  Lsttest.ItemCheck.connect([this] { tuskontrol(); });
  buttasi.setDefault();
  buttamam.Click.connect([this] { aktar(); });
  Butİptal.Click.connect([this] { closeByButton(Composed::GivenUp); });
}

void FrmDemand::Load() {
  lblisim.setCaption(istasyon.SeciliHasta);
  lblhasta.setCaption(shell::hastaBandi(istasyon, istasyon.SeciliHasta));
  TestCatalogueScreen::Load();
  tuskontrol();
}

void FrmDemand::tuskontrol() {
  TestCatalogueScreen::tuskontrol();
  buttasi.setEnabled(!typedName().empty() || !ticked().empty());
  mnuonizleme.setEnabled(!txtistem.text().empty());
  etkinlestir(mnuyazdır, "Print", !txtistem.text().empty());
}

FrmDemand::Names FrmDemand::ticked() const {
  Names names;
  for (const forms::ListItem& item : Lsttest.items()) {
    if (item.selected) names.push_back(text::trim(item.text));
  }
  return names;
}

void FrmDemand::istemetestekle() {
  Names tests = ticked();
  if (!addTyped(tests) || tests.empty()) return;
  if (othersChanged() && !mayReplace(tests.back())) return;
  addToRequest(tests);
  alanlaribosalt();
}

// A test that the catalogue does not have may be requested all the same, and does not come into the
// catalogue by that. One that was only looked at in the list is not wanted beside ticked ones.
bool FrmDemand::addTyped(Names& tests) {
  if (!lookUp()) return false;
  if (typedName().empty() || (!tests.empty() && chosenInList())) return true;
  const auto test = nameToAdd(shell::Phrase::RequestUnknown);
  if (test && std::ranges::find(tests, *test) == tests.end()) tests.push_back(*test);
  return test.has_value();
}

void FrmDemand::addToRequest(const Names& tests) {
  for (const std::string& test : tests) {
    const bool there = txtistem.text().find(test) != std::string::npos;
    if (there && !istasyon.evetMi(test + metinbul(istasyon, "msgtestoncedenyazildi"))) continue;
    txtistem.setText(txtistem.text().empty() ? test : txtistem.text() + ", " + test);
  }
  for (std::size_t row = 0; row < Lsttest.count(); ++row) Lsttest.setSelected(row, false);
}

void FrmDemand::Yazılar(documents::ReportText& yazı) {
  yazı.secyazitipi();
  yazı.yaz(metinbul(istasyon, "istem") + "\n\n");
  yazı.yazitipiayarla();
  yazı.yaz(txtistem.text());
}

// What is ticked was meant to be requested.
void FrmDemand::aktar() {
  addToRequest(ticked());
  closeByButton(Composed::HandedOver);
}

}  // namespace exam
