#include "shell/frm_pass.h"

#include "shell/captions.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace shell {

FrmPass::FrmPass(Station& station) : Form("frmpass"), istasyon(station) {
  purpose.setVisible(false);
  lblpass.setVisible(false);
  lblsifre.setVisible(false);
  lblsifre.Change.connect([this] {
    ButŞifreDeğiştir.setEnabled(!lblsifre.caption().empty());
    if (!lblsifre.caption().empty()) LŞifbilgi.setCaption(metinbul(istasyon, "msgsifregir"));
  });
  ButŞifreDeğiştir.setEnabled(false);
  // The one dialog whose field ends with Enter: there is nothing after it to fill in.
  buttamam.setDefault();
  buttamam.Click.connect([this] { tamam(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
  ButŞifreDeğiştir.Click.connect([this] { degistir(); });
}

void FrmPass::Load() {
  basliklariyaz(istasyon, *this);
  istasyon.SifreSonucu = 0;
  LŞifbilgi.setCaption(metinbul(istasyon, "msgyenisifregir"));
  txtsifre.setFocus();
}

void FrmPass::about(std::string_view key) {
  lblpass.setCaption(std::string(key));
  lblsifre.setCaption(istasyon.ayar(key));
  purpose.setVisible(key == password::names);
  if (!purpose.visible()) return;
  const bool known = !lblsifre.caption().empty();
  purpose.setCaption(phrase(istasyon, known ? Phrase::HiddenAsked : Phrase::HiddenNotSet));
}

// A first entry becomes the value to be matched by a second one; a wrong entry ends the dialog.
void FrmPass::tamam() {
  const std::string typed = txtsifre.text();
  if (typed.empty()) return istasyon.host.close(*this);
  if (lblsifre.caption().empty()) {
    istasyon.bilgi(metinbul(istasyon, "msgsifreyiyenidengir"));
    lblsifre.setCaption(typed);
    LŞifbilgi.setCaption(metinbul(istasyon, "msgsifreyiyenidengir"));
    txtsifre.setText("");
    return txtsifre.setFocus();
  }
  if (typed == lblsifre.caption()) {
    istasyon.ayarYaz(lblpass.caption(), typed);
    istasyon.SifreSonucu = 1;
  } else {
    yanlisSifre();
  }
  istasyon.host.close(*this);
}

void FrmPass::degistir() {
  const std::string old =
      istasyon.host.inputBox(metinbul(istasyon, "inpeskisifregir"), ButŞifreDeğiştir.caption(), "");
  if (old != lblsifre.caption()) return yanlisSifre();
  lblsifre.setCaption("");
  txtsifre.setText("");
  LŞifbilgi.setCaption(metinbul(istasyon, "msgyenisifregir"));
  txtsifre.setFocus();
}

void FrmPass::yanlisSifre() {
  istasyon.mesaj(metinbul(istasyon, "msghatalisifre"), host::Buttons::Ok, host::Icon::Critical);
}

std::vector<settings::Place> guardedSettings() {
  std::vector<settings::Place> places;
  for (const std::string_view key :
       {std::string_view("oppas"), std::string_view("nopen"), password::opening,
        std::string_view("accpas"), password::accounts, password::names})
    places.emplace_back(settings::PlaceView{applicationName, mainSection, key});
  return places;
}

bool sifreKayip(const Station& istasyon, std::string_view key) {
  return istasyon.settings.isLost(applicationName, mainSection, key);
}

bool sifreSor(Station& istasyon, std::string_view key, PasswordChange change) {
  if (sifreKayip(istasyon, key)) {
    istasyon.SifreSonucu = 0;
    istasyon.mesaj(phrase(istasyon, Phrase::PasswordLost) + istasyon.settings.guardPath().string(),
                   host::Buttons::Ok, host::Icon::Critical);
    return false;
  }
  FrmPass dialog(istasyon);
  dialog.Load();
  dialog.about(key);
  if (change == PasswordChange::Withheld) dialog.ButŞifreDeğiştir.setVisible(false);
  istasyon.host.showModal(dialog);
  return istasyon.SifreSonucu == 1;
}

}  // namespace shell
