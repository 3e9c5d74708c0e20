#include "exam/frm_drug.h"

#include <array>

#include "documents/frm_wizard_drug.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/patient_warning.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace exam {

using shell::Phrase;

namespace {
constexpr const char* letterheadNameAndDate = "3";
}

FrmDrug::FrmDrug(Station& station) : CatalogueScreen(station, "frmdrug", "txteskiilaç") {
  sırano.setVisible(false);
  baski.lblsablonno.setCaption(letterheadNameAndDate);
  tusGrubu({"New", "Save", "Delete"});
  tusGrubu({"Print", "sihirbaz"});
  tbToolBar.addButton("Exit", "Exit");
  alanlariBagla();
  connectList(Completion::None);
  Lstilaç.DblClick.connect([this] {
    if (showRow()) buttasi.press();
  });
  buttasi.Click.connect([this] { Reçeteyeilaçekle(); });
  txtrecete.Change.connect([this] { receteDegisti(); });
  mnusihirbaz.Click.connect([this] { sihirbazAc(); });
  buttamam.Click.connect([this] { closeByButton(Composed::HandedOver); });
  Butİptal.Click.connect([this] { closeByButton(Composed::GivenUp); });
}

std::span<const shell::FieldRow> FrmDrug::alanlar() const {
  using shell::controlOf;
  static constexpr std::array<shell::FieldRow, 4> rows{{
      {controlOf<&FrmDrug::txtilaç>, "Drog", "ilac"},
      {controlOf<&FrmDrug::txtkullanım>, "Dosage", "Doz"},
      {controlOf<&FrmDrug::txtadet>, "number", "Adet"},
      {controlOf<&FrmDrug::txtaçıklama>, "Prospectus", "Prospektüs"},
  }};
  return rows;
}

void FrmDrug::Load() {
  alanGenislikleri(istasyon.stores.clinical.database, "drug");
  CatalogueScreen::Load();
  tbToolBar.setButtonToolTip("sihirbaz", phrase(istasyon, shell::Phrase::PrintWizard));
  lblisim.setCaption(sisim(istasyon.SeciliHasta));
  shell::uyariGoster(istasyon, istasyon.SeciliHasta, lbluyarı);
  sırano.setCaption("0");
  İlaçlistele();
  alanlaribosalt();
}

// --- The catalogue

void FrmDrug::alanlaribosalt() {
  CatalogueScreen::alanlaribosalt();
  buttasi.setEnabled(false);
}

void FrmDrug::tuskontrol() {
  CatalogueScreen::tuskontrol();
  buttasi.setEnabled(!text::trimmed(txtilaç.text()).empty());
}

// The prescription is not part of the drug.
bool FrmDrug::temizlenebilir() {
  return !YeniAlanlar().empty();
}

// --- The prescription

bool FrmDrug::ikinciKezMi(const std::string& name) {
  return txtrecete.text().find(name) == std::string::npos ||
         istasyon.evetMi(name + metinbul(istasyon, "msgilaconcedenyazildi"));
}

// The dosage of a drug is never written behind the name of another one.
void FrmDrug::Reçeteyeilaçekle() {
  if (!lookUp()) return;
  const bool alone = !ownerOfFields().empty();
  const auto name = nameToAdd(alone ? Phrase::PrescribeNameAlone : Phrase::PrescribeUnknown);
  if (!name || !ikinciKezMi(*name)) return;
  const std::string number = alone ? std::string() : text::trim(txtadet.text());
  const std::string dosage = alone ? std::string() : text::trim(txtkullanım.text());
  sırano.setCaption(std::to_string(text::wholeNumber(sırano.caption()).value_or(0) + 1));
  const std::string before = txtrecete.text().empty() ? "" : txtrecete.text() + "\n";
  txtrecete.setText(before + sırano.caption() + " - " + *name + "   " + number +
                    "\n    S: " + dosage);
  if (txteski.text().empty()) {
    if (!alone) own();
  } else if (*name != text::trim(txteski.text()) && !othersChanged()) {
    beginWith(*name);
  }
}

bool FrmDrug::tusBas(std::string_view key) {
  if (key == "sihirbaz") return mnusihirbaz.press(), true;
  return CatalogueScreen::tusBas(key);
}

// What is printed is the prescription, whichever drug is on the screen.
void FrmDrug::yeniEtkin(bool enabled) {
  CatalogueScreen::yeniEtkin(enabled);
  receteDegisti();
}

void FrmDrug::receteDegisti() {
  const bool composed = !txtrecete.text().empty();
  if (text::trimmed(txtrecete.text()).empty()) sırano.setCaption("0");
  mnuonizleme.setEnabled(composed);
  etkinlestir(mnuyazdır, "Print", composed);
  etkinlestir(mnusihirbaz, "sihirbaz", composed);
}

void FrmDrug::Yazılar(documents::ReportText& yazı) {
  yazı.secyazitipi();
  yazı.yaz(lblRp.caption() + "\n\n");
  yazı.yazitipiayarla();
  yazı.yaz(txtrecete.text());
}

void FrmDrug::sihirbazAc() {
  istasyon.ekranAc("frmwizarddrug", mnusihirbaz.caption(), [this](forms::Form& form) {
    dynamic_cast<documents::FrmWizardDrug&>(form).receteAl(txtrecete.text());
  });
}

}  // namespace exam
