// This station among others: its place in the register, the patient that it holds, and the run of
// maintenance, for which it must be alone.
#include "platform/text/number.h"
#include "registry/frm_main.h"
#include "shell/fault_words.h"
#include "shell/file_care.h"
#include "shell/patient_lock.h"
#include "shell/phrases.h"
#include "shell/store_check.h"
#include "shell/text_lookup.h"

namespace registry {

namespace {

using platform::Fault;
using platform::Status;
using shell::PatientLock;
using shell::Phrase;
using Company = shell::StationRegister::Company;

constexpr auto runningStations = "NS";

}  // namespace

// Comes before the stores: nobody may open them while another station exchanges their files.
bool FrmMain::netAc() {
  for (;;) {
    const auto company = shell::OpenStationRegister(istasyon);
    if (!company && company.error().fault() == Fault::Busy) {
      const auto answer = istasyon.mesaj(phrase(istasyon, Phrase::CareElsewhere),
                                         host::Buttons::OkCancel, host::Icon::Information);
      if (answer == host::Answer::Ok) continue;
      return false;
    }
    yalnizlik_ = company ? Status() : company.error();
    if (yalnizlik_.fault() == Fault::NotAFile)
      shell::hataSoyle(istasyon, Phrase::WithoutRegister, yalnizlik_);
    yalnizAcildi(company && *company == Company::Alone);
    return true;
  }
}

// The others wait only for a run of maintenance.
void FrmMain::yalnizAcildi(bool alone) {
  if (alone) shell::removeLeftovers(istasyon);
  shell::depolariDenetle(istasyon, alone);
  // A station that has ended since the settings were read has lowered the number.
  istasyon.settings.refresh().ignore();
  hataliCikis_ = alone && text::Val(istasyon.ayar(runningStations, "0")) != 0;
  if (!hataliCikis_) istasyon.sicil.letIn();
}

void FrmMain::netacilis() {
  if (hataliCikis_) {
    istasyon.bilgi(metinbul(istasyon, "msghatalicikis"));
    dosyabakimi();
    istasyon.ayarYaz(runningStations, "0");
  }
  if (istasyon.sicil.isOpen()) yerAl();
  netDenendi_ = true;
  netDurumu();
}

// What kept the register or the font records from this station in the morning may be over. Nobody
// is made to wait for it.
void FrmMain::netYenidenDene() {
  constexpr std::chrono::milliseconds none{0};
  if (!netDenendi_ || istasyon.sicil.slot() > 0 || !istasyon.stores.personal.database.isOpen())
    return;
  if (!istasyon.sicil.isOpen() && !istasyon.sicil.open(istasyon.UygYolu, none)) return;
  yerAl(none);
  const std::string patient = istasyon.AgKaydi.name;
  auto lock = PatientLock::take(istasyon);
  if (lock && !patient.empty() && !lock->isElsewhere(patient)) lock->publish(patient);
  netDurumu();
}

void FrmMain::depolariYenidenDene() {
  if (stores::areOpen(istasyon.stores)) return;
  const bool hadCards = istasyon.stores.personal.database.isOpen();
  stores::OpenClosedStores(istasyon.stores).ignore();
  if (hadCards || !istasyon.stores.personal.database.isOpen()) return;
  alanGenislikleri(istasyon.stores.personal.database, "IDCard");
  Listeleriyaz();
  yonleriAc();
  gunlukListele();
}

void FrmMain::yerAl(std::chrono::milliseconds patience) {
  const auto slot = istasyon.sicil.takeSlot(patience);
  istasyon.sicil.letIn();
  yalnizlik_ = slot ? Status() : slot.error();
  if (!slot) return;
  istasyon.AgKaydi.used = 1;
  Netsıra.setCaption(std::to_string(*slot));
  sayildi_ = netSay(1);
}

// As one step: other stations of the user count, too.
bool FrmMain::netSay(int stations) {
  return istasyon.settings
      .add(shell::applicationName, shell::mainSection, runningStations, stations)
      .has_value();
}

void FrmMain::netkapanis() {
  istasyon.sicil.close();
  istasyon.AgKaydi = {};
  if (sayildi_ && text::Val(istasyon.ayar(runningStations, "0")) > 0) netSay(-1);
  sayildi_ = false;
  netDenendi_ = false;
}

void FrmMain::netDurumu() {
  const std::string& slot = Netsıra.caption();
  sbDurum.setPanel(4, slot.empty() ? phrase(istasyon, Phrase::WithoutRegister) +
                                         shell::kisaNedeni(istasyon, yalnizlik_)
                                   : phrase(istasyon, Phrase::StationNumber) + slot);
}

dao::Status FrmMain::kartiBul() {
  return tablo().Seek("=", istasyon.SeciliHasta);
}

// Another station's commit is waited for without the register locked: else all of them would wait.
FrmMain::Taken FrmMain::hastayiTut() {
  constexpr int mostLooks = 20;
  baskaIstasyon_ = 0;
  if (istasyon.SeciliHasta.empty()) return Taken::Missing;
  for (int look = 0; look < mostLooks; ++look) {
    if (const auto taken = hemenTut()) return *taken;
    if (kartiBul().fault() == dao::Fault::Busy) break;
  }
  return Taken::Elsewhere;
}

// Looked up and taken in one step: no rename or delete of another station comes in between. The
// name is compared as it is stored, however it was typed. None while the store is busy.
std::optional<FrmMain::Taken> FrmMain::hemenTut() {
  auto lock = PatientLock::take(istasyon);
  if (!lock) return Taken::Elsewhere;
  const dao::Impatience hurry(istasyon.stores.personal.database);
  const dao::Status found = kartiBul();
  if (found.fault() == dao::Fault::Busy) return std::nullopt;
  if (!found || tablo().NoMatch()) return Taken::Missing;
  const std::string name = tablo().Fields("Name").text();
  baskaIstasyon_ = lock->whereElse(name);
  if (baskaIstasyon_ > 0) return Taken::Elsewhere;
  lock->publish(name);
  return Taken::Ours;
}

// A name that is new to this station is written and taken in one step: nobody can load the card in
// between.
dao::Status FrmMain::tutarakYaz() {
  const std::string name = Txtİsim.text();
  if (shell::slotName(name) == istasyon.AgKaydi.name) return kartiYaz();
  auto lock = PatientLock::take(istasyon);
  if (!lock) return lock.error();
  if (lock->isElsewhere(name)) return isimAlinmis(name);
  const dao::Status written = kartiYaz();
  if (written) lock->publish(name);
  return written;
}

dao::Status FrmMain::isimAlinmis(const std::string& name) const {
  return {Fault::Other, name + ": " + phrase(istasyon, Phrase::NameTaken)};
}

// The recordsets are new ones. A card on the screen is read again; what failed to open before the
// run may be there now.
void FrmMain::dosyabakimi() {
  const bool wasOpen = istasyon.stores.personal.database.isOpen();
  listeyiKapat();
  shell::dosyabakimi(istasyon);
  if (!wasOpen) {
    alanGenislikleri(istasyon.stores.personal.database, "IDCard");
    Listeleriyaz();
    Yeni();
  }
  gunlukListele();
  if (!TxtEskiİsim.text().empty()) hastayiGoster(TxtEskiİsim.text());
}

}  // namespace registry
