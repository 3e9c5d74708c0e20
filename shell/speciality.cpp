#include "shell/speciality.h"

#include <algorithm>
#include <array>

#include "platform/forms/button.h"
#include "platform/forms/menu.h"
#include "platform/text/fold.h"
#include "shell/speciality_matrix.h"
#include "shell/text_lookup.h"

namespace shell {

namespace {

constexpr std::array<Speciality, 15> specialityRows{{
    {"IntMed", 1, 215, "Internal Medicine", "ichastaliklari"},
    {"Surgery", 2, 225, "Surgery", "Cerrahi"},
    {"Pediatrics", 3, 235, "Pediatrics", "Çocuk"},
    {"Gynecology", 4, 245, "Gynecology", "Kadın Doğum"},
    {"Ophthalmology", 5, 255, "Ophthalmology", "goz"},
    {"ENT", 6, 265, "ENT", "KBB"},
    {"Orthopedics", 7, 275, "Orthopedics", "Ortopedi"},
    {"Polyclinic", 8, 285, "Polyclinic", "Poliklinik"},
    {"Pathology", 9, 295, "Pathology", "Patoloji"},
    {"Cardiology", 10, 305, "Cardiology", "Kardiyoloji"},
    {"Neurology", 11, 315, "Neurology", "noroloji"},
    {"Urology", 12, 325, "Urology", "uroloji"},
    {"Smoke", 13, 345, "Smoke", "sigarapoliklinigi"},
    {"Radiology", 14, 355, "Radiology", "radyoloji"},
    {"General Medicine", 20, 335, "GenMed", "hastatakipprogrami"},
}};

struct SwitchButton {
  std::string_view button;
  int BransNo;
  std::string_view BransAdi;
  std::string_view captionKey;
};
constexpr std::array<SwitchButton, 7> switchButtons{{
    {"Bdahiliye", 1, "Internal Medicine", "ichastaliklari"},
    {"BCerrahi", 2, "Surgery", "Cerrahi"},
    {"BÇocuk", 3, "Pediatrics", "Çocuk"},
    {"BKadınDoğum", 4, "Gynecology", "Kadın Doğum"},
    {"BGöz", 5, "Ophthalmology", "goz"},
    {"BKBB", 6, "ENT", "KBB"},
    {"BGenel", 20, "GenMed", "genelhastatakip"},
}};

bool reports(int bransNo) {
  return bransNo == brans::pathology || bransNo == brans::radiology;
}

void setVisible(forms::Form& main, matrix::Names names, bool visible) {
  for (const std::string_view name : names) {
    if (forms::Control* control = main.find(name)) control->setVisible(visible);
  }
}

void setVisitButton(Station& istasyon, forms::Form& main) {
  auto* const toolbar = dynamic_cast<forms::Toolbar*>(main.find("tbToolBar"));
  if (toolbar == nullptr) return;
  // Never shown again here: restricted opening may have hidden it.
  if (istasyon.BransNo == brans::smoke) toolbar->setButtonVisible("muayene", false);
  toolbar->setButtonImage("muayene", visitImage(istasyon.BransNo, Visits::None));
  std::string toolTip = metinbul(istasyon, "Muayene");
  if (istasyon.BransNo == brans::pathology) toolTip = metinbul(istasyon, "Patoloji Raporu");
  if (istasyon.BransNo == brans::radiology) toolTip = metinbul(istasyon, "radyolojiraporu");
  toolbar->setButtonToolTip("muayene", toolTip);
}

void apply(forms::Form& main, const matrix::Row* row) {
  if (row == nullptr) return;
  if (forms::Control* entry = main.find(row->examination)) entry->setVisible(true);
  setVisible(main, row->visible, true);
  setVisible(main, row->hidden, false);
}

// What a switch on a polyclinic copy changes besides the shared values.
void bransdegistir(Station& istasyon, forms::Form& main) {
  setVisible(main, matrix::hiddenAtSwitch(), false);
  if (forms::Control* search = main.find("mnuameliyatara")) search->setVisible(true);
  apply(main, matrix::atSwitch(istasyon.BransNo));
  setVisitButton(istasyon, main);
}

}  // namespace

std::span<const Speciality> specialities() {
  return specialityRows;
}

std::string bransbul(Station& istasyon) {
  const std::string wanted = text::upper(istasyon.programName);
  const auto found = std::ranges::find_if(specialityRows, [&](const Speciality& row) {
    return text::upper(row.programName) == wanted;
  });
  const Speciality& row = found == specialityRows.end() ? specialityRows.back() : *found;
  istasyon.BransNo = row.BransNo;
  istasyon.BransKodu = row.BransKodu;
  istasyon.BransAdi = row.BransAdi;
  return metinbul(istasyon, row.captionKey);
}

void bransmenusu(Station& istasyon, forms::Form& main) {
  istasyon.Surum = "version 3.0  p4";
  main.setCaption(bransbul(istasyon));
  setVisible(main, matrix::hiddenAtStart(), false);
  apply(main, matrix::atStart(istasyon.BransNo));
  setVisitButton(istasyon, main);
}

bool bransSec(Station& istasyon, forms::Form& main, std::string_view button) {
  const auto found = std::ranges::find(switchButtons, button, &SwitchButton::button);
  if (found == switchButtons.end()) return false;
  istasyon.BransNo = found->BransNo;
  istasyon.BransAdi = found->BransAdi;
  main.setCaption(metinbul(istasyon, found->captionKey));
  bransdegistir(istasyon, main);
  return true;
}

std::string_view examinationEntry(int bransNo) {
  if (bransNo == brans::general) return "MnuMuayene20";
  if (bransNo == brans::smoke) return "mnumuayene13";
  if (bransNo == brans::polyclinic) return {};
  const matrix::Row* const row = matrix::atStart(bransNo);
  return row == nullptr ? std::string_view() : row->examination;
}

std::string_view visitImage(int bransNo, Visits visits) {
  if (reports(bransNo)) return visits == Visits::Some ? "raporv" : "rapor";
  return visits == Visits::Some ? "muayenev" : "muayene";
}

}  // namespace shell
