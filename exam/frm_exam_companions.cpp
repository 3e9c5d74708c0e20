// The way from the examination to the patient's other records.
#include <algorithm>

#include "exam/frm_exam.h"
#include "platform/text/utf8.h"
#include "shell/patient_warning.h"
#include "shell/picture_archive.h"
#include "shell/visit_buttons.h"

namespace exam {

namespace {

using Entry = forms::MenuItem FrmExam::*;

struct Button {
  std::string_view key;
  Entry entry;
};
constexpr std::array<Button, 5> ownButtons{{{"recete", &FrmExam::mnureçete},
                                            {"istem", &FrmExam::mnuistem},
                                            {"resim", &FrmExam::mnuresim},
                                            {"film", &FrmExam::mnufilm},
                                            {"dokum", &FrmExam::mnumuayenedökümü}}};

// Another screen of the same patient. Those that only some specialities use come and go with them.
enum class Shown { Always, BySpeciality };
struct Companion {
  std::string_view key;
  Entry entry;
  std::string_view screen;
  Shown shown = Shown::BySpeciality;
};
constexpr std::array<Companion, 11> companions{{
    {"test", &FrmExam::mnutest, "frmtest", Shown::Always},
    {"operation", &FrmExam::mnuameliyat, "frmoperation"},
    {"fizikgelişme", &FrmExam::mnufizikgelişme, "frmpersantil"},
    {"motmengelişme", &FrmExam::mnumotmengelişme, "frmmotor"},
    {"asi", &FrmExam::mnuasi, "frmvaccin"},
    {"Gebe", &FrmExam::mnugebetakip, "FrmGravid"},
    {"Lens", &FrmExam::mnulens, "frmlens"},
    {"glass", &FrmExam::mnugözlük, "Frmglas"},
    {"angio", &FrmExam::mnuanjiyo, "frmangio"},
    {"echo", &FrmExam::mnueko, "frmecho"},
    {"efor", &FrmExam::mnuefor, "frmefor"},
}};

void setText(const forms::Form& form, std::string_view control, std::string_view text) {
  if (auto* const field = dynamic_cast<forms::TextControl*>(form.find(control)))
    field->setText(text);
}

}  // namespace

void FrmExam::menuleriBagla() {
  for (const Companion& row : companions) {
    const bool shown = row.shown == Shown::Always || calisma_.shows(row.key);
    (this->*row.entry).setVisible(shown);
    tbToolBar.setButtonVisible(row.key, shown);
    (this->*row.entry).Click.connect([this, &row] { ekranAc(this->*row.entry, row.screen); });
  }
  çizgi4.setVisible(
      std::ranges::any_of(calisma_.companions, [](auto key) { return !key.empty(); }));
  mnureçete.Click.connect([this] { metinAl(mnureçete, "frmdrug", txttedavi); });
  mnuistem.Click.connect([this] { metinAl(mnuistem, "frmdemand", txttahlil); });
  mnuresim.Click.connect([this] {
    shell::resimArsivi(
        istasyon, *this,
        {.entry = mnuresim.caption(), .tarih = txttarih.text(), .isim = lblisim.caption()});
  });
  mnufilm.Click.connect([this] { filmAc(); });
  mnuwarn.Click.connect([this] { uyariAc(); });
  mnumuayenedökümü.Click.connect([this] { dokumYaz(); });
}

bool FrmExam::tusBas(std::string_view key) {
  const auto press = [&](const auto& rows) {
    const auto row = std::ranges::find_if(rows, [&](const auto& each) { return each.key == key; });
    if (row != rows.end()) (this->*row->entry).press();
    return row != rows.end();
  };
  return press(companions) || press(ownButtons) || DatedRecordScreen::tusBas(key);
}

// The patient's name stands in the title of the screen. Records may have come or gone there.
void FrmExam::ekranAc(const forms::MenuItem& entry, std::string_view screen,
                      const shell::Station::Prepare& prepare) {
  istasyon.ekranAc(screen, entry.caption(), [&](forms::Form& form) {
    form.setCaption(form.caption() + " (" + sisim(lblisim.caption()) + ")");
    if (prepare) prepare(form);
  });
  shell::vizitDugmeleri(istasyon, tbToolBar, lblisim.caption());
}

void FrmExam::Ameliyataç() {
  mnuameliyat.Click();
}

// What the screen hands back goes behind what the field holds.
void FrmExam::metinAl(const forms::MenuItem& entry, std::string_view screen,
                      forms::TextBox& field) {
  istasyon.AktarilanMetin.clear();
  ekranAc(entry, screen);
  if (istasyon.AktarilanMetin.empty()) return;
  sayfaSec(Page::General);
  field.setText(field.text().empty() ? istasyon.AktarilanMetin
                                     : field.text() + "\n" + istasyon.AktarilanMetin);
}

void FrmExam::filmAc() {
  istasyon.AktarilanMetin.clear();
  ekranAc(mnufilm, "Frmmov", [this](forms::Form& form) { setText(form, "txtavi", txtmov.text()); });
  if (!istasyon.AktarilanMetin.empty()) txtmov.setText(istasyon.AktarilanMetin);
}

// The entry of the accounts begins with what is known here.
void FrmExam::hesapAc() {
  if (!istasyon.screens.has("frmaccount")) return;
  istasyon.ekranAc("frmaccount", {}, [this](forms::Form& form) {
    const std::string name = lblisim.caption();
    if (forms::Control* const patient = form.find("lblisim"))
      patient->setCaption(text::trim(name.substr(0, name.find('('))));
    setText(form, "dtdate", txttarih.text());
    setText(form, "txtodemeyialan", comdoktor.text());
    setText(form, "txtucret", txtücret.text());
  });
}

// --- The patient's warning

void FrmExam::uyariOku() {
  mnuwarn.setEnabled(shell::uyariGoster(istasyon, lblisim.caption(), lbluyarı) ==
                     shell::Warned::Yes);
}

void FrmExam::uyariAc() {
  ekranAc(mnuwarn, "frmwarn");
  uyariOku();
}

}  // namespace exam
