#include "shell/frm_option.h"

#include <algorithm>
#include <array>

#include "platform/text/number.h"
#include "shell/backup.h"
#include "shell/captions.h"
#include "shell/frm_pass.h"
#include "shell/phrases.h"
#include "shell/speciality.h"
#include "shell/text_lookup.h"
#include "stores/backup.h"

namespace shell {

namespace {

constexpr std::array reminderDays{"0", "1", "3", "5", "10", "15", "20", "30"};

// Which setting each box stands for.
struct BoxSetting {
  std::string_view key;
  forms::CheckBox FrmOption::*box;
};
constexpr std::array<BoxSetting, 2> passwordBoxes{{
    {"oppas", &FrmOption::acilistasifresor},
    {"accpas", &FrmOption::hesaplardasifre},
}};
constexpr std::array<BoxSetting, 5> otherBoxes{{
    {"BDrem", &FrmOption::dghatirlat},
    {"openapp", &FrmOption::chkrandevuaçılış},
    {"closeapp", &FrmOption::chkrandevukapanış},
    {"closebackup", &FrmOption::chkçıkyedek},
    {"smok", &FrmOption::chsigarabrakma},
}};

}  // namespace

FrmOption::FrmOption(Station& station) : Form("FrmOption"), istasyon(station) {
  TabStrip1.Click.connect([this] { sekmeSec(); });
  ayarlariBagla();
  listeleriBagla();
  basligiBagla();
  buttamam.Click.connect([this] {
    AyarKaydet();
    ListKaydet();
    BaşlıkKaydet();
    if (!baslikDegisti_) istasyon.host.close(*this);
  });
  Butİptal.Click.connect([this] {
    cancelled_ = true;
    istasyon.host.close(*this);
  });
}

bool FrmOption::mayEscape() {
  return !baslikDegisti_ || istasyon.confirmLoss(phrase(istasyon, Phrase::LoseTyped));
}

bool FrmOption::QueryUnload() {
  return cancelled_ || mayEscape();
}

void FrmOption::Load() {
  basliklariyaz(istasyon, *this);
  Comgönce.setItems({reminderDays.begin(), reminderDays.end()});
  ayarlariOku();
  ListeleriKaydet();
  basligiOku();
  sekmeSec();
}

void FrmOption::sekmeSec() {
  PAyarlar.setVisible(TabStrip1.selected() == "TSAyarlar");
  PListeler.setVisible(TabStrip1.selected() == "TSListeler");
  PBaşlık.setVisible(TabStrip1.selected() == "TSBaşlık");
}

void FrmOption::ayarlariBagla() {
  LblDil.setVisible(false);
  OptTR.Click.connect([this] { LblDil.setCaption("tr"); });
  OptGB.Click.connect([this] { LblDil.setCaption("eng"); });
  acilistasifresor.MouseDown.connect(
      [this](bool& eaten) { sifreIle(acilistasifresor, password::opening, eaten); });
  hesaplardasifre.MouseDown.connect(
      [this](bool& eaten) { sifreIle(hesaplardasifre, password::accounts, eaten); });
  chkçıkyedek.MouseDown.connect([this](bool& eaten) {
    if (!chkçıkyedek.value()) eaten = !yedekKlasoru();
  });
}

void FrmOption::ayarlariOku() {
  (istasyon.turkce() ? OptTR : OptGB).setValue(true);
  const auto read = [this](const BoxSetting& row) {
    (this->*row.box).setValue(istasyon.acik(row.key) || sifreKayip(istasyon, row.key));
  };
  std::ranges::for_each(passwordBoxes, read);
  std::ranges::for_each(otherBoxes, read);
  const bool stays = istasyon.ayar("nopen", "1") == "True" || sifreKayip(istasyon, "nopen");
  (stays ? optaçma : optkısıtlıaç).setValue(true);
  Comgönce.setText(istasyon.ayar("remday", "0"));
  txtbtime.setText(istasyon.ayar("btime", "12:00"));
  txtintapp.setText(istasyon.ayar("intapp", "30"));
  // No backup at exit is promised before there is one.
  chkçıkyedek.setEnabled(istasyon.screens.has("FrmSave"));
  chsigarabrakma.setEnabled(istasyon.BransKodu == brans::koduDahiliye);
}

void FrmOption::AyarKaydet() {
  const auto write = [this](const BoxSetting& row) {
    istasyon.ayarYaz(row.key, (this->*row.box).value() ? "1" : "0");
  };
  istasyon.ayarYaz("btime", txtbtime.text());
  istasyon.ayarYaz("intapp", txtintapp.text());
  std::ranges::for_each(passwordBoxes, write);
  istasyon.ayarYaz("nopen", optaçma.value() ? "True" : "False");
  istasyon.ayarYaz("remday", Comgönce.text());
  std::ranges::for_each(otherBoxes, write);
  if (istasyon.kart != nullptr) istasyon.kart->sigaraGirisi();
  if (LblDil.caption() != istasyon.ayar("Language")) dilDegistir();
}

void FrmOption::dilDegistir() {
  istasyon.ayarYaz("Language", LblDil.caption());
  basliklariyaz(istasyon, *this);
  if (istasyon.kart != nullptr) istasyon.kart->dilDegisti();
}

// A box with a password behind it changes only when the password dialog accepts.
void FrmOption::sifreIle(forms::CheckBox& box, std::string_view key, bool& eaten) {
  eaten = true;
  if (!sifreSor(istasyon, key)) return;
  istasyon.SifreSonucu = 0;
  box.setValue(!box.value());
}

// Backing up at exit wants a folder first.
bool FrmOption::yedekKlasoru() {
  const auto folder = istasyon.host.chooseFolder(
      metinbul(istasyon, "Yedekle"), istasyon.ayar(backupFolderSetting, istasyon.dosya("Backup")));
  if (!folder) return false;
  if (stores::isDataFolder(istasyon.UygYolu, *folder)) {
    istasyon.bilgi(phrase(istasyon, Phrase::BackupNotIntoData));
    return false;
  }
  istasyon.ayarYaz(backupFolderSetting, *folder);
  return true;
}

}  // namespace shell
