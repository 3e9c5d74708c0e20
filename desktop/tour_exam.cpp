#include "desktop/tour_exam.h"

#include <array>

#include "shell/speciality.h"
#include "shell/text_lookup.h"
#include "stores/visit_ledger.h"

namespace desktop {

namespace {

struct Entry {
  forms::TextBox exam::FrmExam::*field;
  const char* text;
};

constexpr auto entries = std::to_array<Entry>({
    {&exam::FrmExam::txtşikayet, "Baş ağrısı, ense ağrısı, çarpıntı"},
    {&exam::FrmExam::txthikaye,
     "Sabahları belirgin baş ağrısı, iki haftadır.\nEvde ölçülen tansiyon 150/95 civarında; "
     "ağrı kesiciden kısmen yarar görüyor.\nGörme bozukluğu ve bulantı tanımlamıyor."},
    {&exam::FrmExam::txtözgeçmiş, "Apendektomi (2004). Penisilin alerjisi."},
    {&exam::FrmExam::txtsoygeçmiş, "Babada koroner arter hastalığı"},
    {&exam::FrmExam::txtnabız, "88"},
    {&exam::FrmExam::txtsistol, "150"},
    {&exam::FrmExam::txtdiastol, "95"},
    {&exam::FrmExam::txtateş, "36.6"},
    {&exam::FrmExam::txtboy, "164"},
    {&exam::FrmExam::txtkilo, "71"},
    {&exam::FrmExam::txtfizikmuayene, "S1 ve S2 doğal, ek ses ve üfürüm yok. Ödem yok."},
    {&exam::FrmExam::txttahlil, "Açlık kan şekeri 98, kreatinin 0,9, potasyum 4,3"},
    {&exam::FrmExam::txtteşhis, "Esansiyel hipertansiyon"},
    {&exam::FrmExam::txttedavi, "1 - AMLODİPİN 5 MG TABLET   1\n    S: 1x1"},
    {&exam::FrmExam::txtöneri, "Tuzsuz diyet, yürüyüş"},
    {&exam::FrmExam::txtkontrol, "1 ay sonra"},
    {&exam::FrmExam::txtücret, "750.00"},
    {&exam::FrmExam::txtoralkavite, "Tonsiller doğal, orofarenks hafif hiperemik"},
    {&exam::FrmExam::Txtnazalkavite, "Septum solda deviye, konkalar hipertrofik"},
    {&exam::FrmExam::txtSağotoskopi, "Zar intakt"},
    {&exam::FrmExam::txtSolotoskopi, "Zar hiperemik, ışık refleksi kayıp"},
    {&exam::FrmExam::TxtİAT, "12"},
    {&exam::FrmExam::txtSAT, "14.10.2026"},
    {&exam::FrmExam::TxtAdedleri, "5/28"},
    {&exam::FrmExam::txtDismenore, "Hafif"},
    {&exam::FrmExam::txtvaginalakıntı, "Yok"},
    {&exam::FrmExam::txtkorunma, "RİA, 2023"},
    {&exam::FrmExam::txtp, "2"},
    {&exam::FrmExam::txtg, "3"},
    {&exam::FrmExam::txty, "2"},
    {&exam::FrmExam::txta, "1"},
    {&exam::FrmExam::txtc, "0"},
    {&exam::FrmExam::txtgörmesağ, "0.8"},
    {&exam::FrmExam::txtgörmesol, "0.6"},
    {&exam::FrmExam::txttasgörsağ, "-0.75 ile tam"},
    {&exam::FrmExam::txttasgörsol, "-1.25 (-0.50 x 90) ile tam"},
    {&exam::FrmExam::txtgözlüksağ, "-0.75"},
    {&exam::FrmExam::txthorizontalsağ, "43.25"},
    {&exam::FrmExam::txthorizontalsol, "43.50"},
    {&exam::FrmExam::txtekg, "Normal sinüs ritmi, 88/dk. V5 ve V6'da ST çökmesi yok."},
    {&exam::FrmExam::txttele, "KTO normal"},
});

constexpr auto patient = "Ayşe Yıldırım";

std::vector<forms::ListItem> sampleDates() {
  std::vector<forms::ListItem> dates;
  struct Day {
    const char* date;
    const char* diagnosis;
  };
  for (const Day& day : {Day{"17.09.2019", "Akut bronşit"}, Day{"02.03.2021", ""},
                         Day{"11.06.2024", "Demir eksikliği anemisi"},
                         Day{"17.09.2025", "Esansiyel hipertansiyon, evre 1"},
                         Day{"03.02.2026", "Esansiyel hipertansiyon"}})
    dates.push_back(
        {.text = day.date, .data = static_cast<long>(dates.size()) + 1, .note = day.diagnosis});
  return dates;
}

}  // namespace

std::string patientWithResults(shell::Station& istasyon) {
  dao::Recordset& visit = istasyon.stores.clinical.Visit;
  const std::string kind = stores::ledgerKey(istasyon.BransAdi, stores::kind::laboratory, "");
  if (!visit.Seek(">=", kind) || visit.NoMatch()) return {};
  const std::string key = visit.Fields("spname").text();
  return key.starts_with(kind) ? key.substr(kind.size()) : std::string();
}

SampleExam::SampleExam(QtHost& host, shell::Station& istasyon, std::string_view program)
    : host_(host),
      istasyon_(istasyon),
      programName_(std::exchange(istasyon.programName, std::string(program))) {
  static_cast<void>(shell::bransbul(istasyon_));
  istasyon_.SeciliHasta = patient;
  form_ = std::make_unique<exam::FrmExam>(istasyon_);
  form_->Load();
  host_.show(*form_);
  write();
}

// Closing stores what has changed: nothing has.
SampleExam::~SampleExam() {
  form_->alanlaribosalt();
  host_.close(*form_);
  istasyon_.SeciliHasta.clear();
  istasyon_.programName = programName_;
  static_cast<void>(shell::bransbul(istasyon_));
}

void SampleExam::write() {
  for (const Entry& entry : entries) (form_.get()->*entry.field).setText(entry.text);
  form_->comdoktor.setText("Dr. Işık Çağlayan");
  form_->ComMedeniDurum.setListIndex(1);
  form_->ChkHT.setValue(true);
  form_->txtp1.setText("retina.jpg");
  form_->liste.setItems(sampleDates());
  form_->lbluyarı.setToolTip(metinbul(istasyon_, "warning"));
  form_->lbluyarı.setCaption("Penisilin alerjisi var.");
  form_->lbluyarı.setVisible(true);
}

}  // namespace desktop
