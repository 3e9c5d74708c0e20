#include "exam/frm_drug.h"

#include <algorithm>
#include <array>

#include "documents/frm_wizard_drug.h"
#include "platform/dao/prefix_search.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/patient_warning.h"
#include "shell/phrases.h"
#include "shell/snapshot.h"
#include "shell/text_lookup.h"

namespace exam {

namespace {
constexpr const char* letterheadNameAndDate = "3";
}

std::string kabulEdilen(std::string_view prescription) {
  constexpr std::string_view dropped = "\n  ";
  std::string text;
  for (const char character : prescription) {
    text += character;
    if (text.ends_with(dropped)) text.resize(text.size() - dropped.size());
  }
  return text;
}

FrmDrug::FrmDrug(Station& station) : NamedRecordScreen(station, "frmdrug", "txteskiilaç") {
  sırano.setVisible(false);
  baski.lblsablonno.setCaption(letterheadNameAndDate);
  tusGrubu({"New", "Save", "Delete"});
  tusGrubu({"Print", "sihirbaz"});
  tbToolBar.addButton("Exit", "Exit");
  alanlariBagla();
  txtilaç.KeyUp.connect([this](forms::Key key) { isimYazildi(key); });
  txtilaç.LostFocus.connect([this] { isimBitti(); });
  Lstilaç.Click.connect([this] { ilacSecildi(); });
  Lstilaç.DblClick.connect([this] { buttasi.press(); });
  buttasi.Click.connect([this] { Reçeteyeilaçekle(); });
  txtrecete.Change.connect([this] { receteDegisti(); });
  mnusihirbaz.Click.connect([this] { sihirbazAc(); });
  buttamam.Click.connect([this] { kabul(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
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
  NamedRecordScreen::Load();
  tbToolBar.setButtonToolTip("sihirbaz", phrase(istasyon, shell::Phrase::PrintWizard));
  lblisim.setCaption(sisim(istasyon.SeciliHasta));
  shell::uyariGoster(istasyon, istasyon.SeciliHasta, lbluyarı);
  sırano.setCaption("0");
  İlaçlistele();
  alanlaribosalt();
}

void FrmDrug::İlaçlistele() {
  std::vector<forms::ListItem> names;
  katlanmis_.clear();
  dao::Recordset& drugs = tablo();
  for (dao::Status moved = drugs.MoveFirst(); moved && !drugs.Eof(); moved = drugs.MoveNext()) {
    names.push_back({.text = drugs.Fields("Drog").text()});
    katlanmis_.push_back(katlanmis(names.back().text));
  }
  Lstilaç.setItems(std::move(names));
}

std::string FrmDrug::katlanmis(std::string_view name) const {
  const bool turkish = istasyon.turkce();
  return dao::folded(name, turkish ? dao::Fold::Turkish : dao::Fold::General);
}

// --- The catalogue

void FrmDrug::Kaydet() {
  NamedRecordScreen::Kaydet();
  if (mnukaydet.enabled()) return;
  isimYazildi({});
  tuskontrol();
}

void FrmDrug::alanlaribosalt() {
  NamedRecordScreen::alanlaribosalt();
  buttasi.setEnabled(false);
}

void FrmDrug::tuskontrol() {
  NamedRecordScreen::tuskontrol();
  buttasi.setEnabled(!text::trimmed(txtilaç.text()).empty());
}

// The prescription is not part of the drug.
bool FrmDrug::temizlenebilir() {
  return !YeniAlanlar().empty();
}

// The list goes to the first name that begins with what was typed.
void FrmDrug::isimYazildi(const forms::Key& key) {
  if (key.code == forms::key_code::Down && Lstilaç.count() > 0) return Lstilaç.setFocus();
  const std::string wanted = katlanmis(text::trim(txtilaç.text()));
  const auto found = std::ranges::find_if(
      katlanmis_, [&](const std::string& name) { return name.starts_with(wanted); });
  if (wanted.empty() || found == katlanmis_.end()) return satiriGoster(-1);
  satiriGoster(static_cast<int>(found - katlanmis_.begin()));
}

void FrmDrug::satiriGoster(int row) {
  aramada_ = true;
  Lstilaç.setListIndex(row);
  aramada_ = false;
}

// A name that the catalogue has shows its drug, unless something else was typed beside the name.
void FrmDrug::isimBitti() {
  const std::string name = text::trim(txtilaç.text());
  if (name.empty() || name == txteski.text() || !yalnizIsim()) return;
  alanlaritasi(name);
}

bool FrmDrug::yalnizIsim() const {
  return txteski.text().empty() && txtkullanım.text().empty() && txtadet.text().empty() &&
         txtaçıklama.text().empty();
}

void FrmDrug::ilacSecildi() {
  if (aramada_ || Lstilaç.listIndex() < 0) return;
  const std::string name = Lstilaç.text();
  // What stands in the name field alone was typed to find the drug.
  if (!yalnizIsim() && !kayitkontrol()) return;
  alanlaritasi(name);
  isimYazildi({});
}

// --- The prescription

void FrmDrug::Reçeteyeilaçekle() {
  const std::string name = text::trim(txtilaç.text());
  if (name.empty()) return;
  const std::string& prescription = txtrecete.text();
  if (prescription.find(name) != std::string::npos &&
      !istasyon.evetMi(name + metinbul(istasyon, "msgilaconcedenyazildi")))
    return;
  sırano.setCaption(std::to_string(text::wholeNumber(sırano.caption()).value_or(0) + 1));
  txtrecete.setText(prescription + (prescription.empty() ? "" : "\n") + sırano.caption() + " - " +
                    name + "   " + text::trim(txtadet.text()) +
                    "\n    S: " + text::trim(txtkullanım.text()));
}

bool FrmDrug::tusBas(std::string_view key) {
  if (key == "sihirbaz") return mnusihirbaz.press(), true;
  return NamedRecordScreen::tusBas(key);
}

// What is printed is the prescription, whichever drug is on the screen.
void FrmDrug::yeniEtkin(bool enabled) {
  NamedRecordScreen::yeniEtkin(enabled);
  receteDegisti();
}

void FrmDrug::receteDegisti() {
  const bool composed = !txtrecete.text().empty();
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

void FrmDrug::kabul() {
  istasyon.AktarilanMetin = kabulEdilen(txtrecete.text());
  istasyon.host.close(*this);
}

}  // namespace exam
