#include "app/start_up.h"

#include <array>
#include <memory>

#include "documents/frm_pattern.h"
#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "documents/frm_printer.h"
#include "documents/frm_wizard_drug.h"
#include "exam/frm_demand.h"
#include "exam/frm_drug.h"
#include "exam/frm_exam.h"
#include "exam/frm_test.h"
#include "exam/frm_test_edit.h"
#include "exam/frm_test_filter.h"
#include "exam/frm_test_trend.h"
#include "images/frm_picture.h"
#include "platform/text/number.h"
#include "registry/frm_birthday.h"
#include "registry/frm_key.h"
#include "registry/frm_max.h"
#include "scheduling/frm_ayar.h"
#include "scheduling/frm_mesajlar.h"
#include "scheduling/frm_msg_gon.h"
#include "scheduling/message_board.h"
#include "search/frm_find.h"
#include "shell/frm_about.h"
#include "shell/frm_option.h"
#include "shell/frm_pass.h"
#include "shell/frm_save.h"
#include "shell/letterhead.h"
#include "shell/speciality.h"
#include "shell/told_links.h"
#include "stores/store_kinds.h"

namespace app {

namespace {

// Long enough to be drawn: nobody waits for a picture.
constexpr int splashMilliseconds = 1;

// Restricted opening: the card and the name list stay usable, the tools and the examination do not.
void sp4(registry::FrmMain& main) {
  main.MnuSecenek.setVisible(false);
  for (const char* key : {"muayene", "mesaj"}) main.tbToolBar.setButtonVisible(key, false);
}

template <class Screen>
void add(shell::ScreenDirectory& directory, std::string_view name) {
  directory.add(name, [](shell::Station& station) { return std::make_unique<Screen>(station); });
}

}  // namespace

shell::ScreenDirectory screens() {
  shell::ScreenDirectory directory;
  add<shell::Logo>(directory, "Logo");
  add<shell::FrmOption>(directory, "FrmOption");
  add<shell::FrmPass>(directory, "frmpass");
  add<shell::FrmAbout>(directory, "frmabout");
  add<shell::FrmSave>(directory, "FrmSave");
  add<registry::FrmBirthday>(directory, "Frmbirthday");
  add<registry::FrmKey>(directory, "Frmkey");
  add<registry::FrmMax>(directory, "frmmax");
  add<exam::FrmTest>(directory, "frmtest");
  add<exam::FrmTestEdit>(directory, "frmtestedit");
  add<exam::FrmDemand>(directory, "frmdemand");
  add<exam::FrmTestFilter>(directory, "frmtestfilter");
  add<exam::FrmTestTrend>(directory, "frmtesttrend");
  add<exam::FrmExam>(directory, "FrmExam");
  add<exam::FrmDrug>(directory, "frmdrug");
  add<search::FrmFind>(directory, "FrmFind");
  add<documents::FrmPattern>(directory, "frmpattern");
  add<documents::FrmPrewive>(directory, "frmprewive");
  add<documents::FrmPreview1>(directory, "frmpreview1");
  add<documents::FrmPrinter>(directory, "frmprinter");
  add<documents::FrmWizardDrug>(directory, "frmwizarddrug");
  add<images::FrmPicture>(directory, "frmpicture");
  add<scheduling::FrmMesajlar>(directory, "frmmesajlar");
  add<scheduling::FrmMsgGon>(directory, "Frmmsggon");
  add<scheduling::FrmAyar>(directory, "frmayar");
  return directory;
}

Session::Session(shell::Station& istasyon)
    : istasyon_(istasyon), main_(istasyon), messages_(istasyon) {
  main_.Timer1.Tick.connect([this] { mesajlaraBak(); });
}

void Session::mesajlaraBak() {
  if (const auto fresh = messages_.look()) main_.yeniMesaj(*fresh);
}

Session::Outcome Session::start() {
  shell::bransmenusu(istasyon_, main_);
  shell::Logo logo(istasyon_);
  logo.Load();
  istasyon_.host.show(logo);
  main_.Load();
  istasyon_.host.pause(splashMilliseconds);
  istasyon_.host.close(logo);
  if (!main_.acildi()) return Outcome::Refused;
  if (!openingPassword()) {
    // What goes down with the program is done all the same; nothing was typed that could be lost.
    (void)main_.QueryUnload();
    main_.Unload();
    return Outcome::Refused;
  }
  baslangictaSoyle();
  registry::dogumGunuHatirlat(istasyon_);
  if (istasyon_.BransNo == shell::brans::polyclinic) main_.BGenel.setValue(true);
  istasyon_.host.show(main_);
  return Outcome::Shown;
}

// What will not work as it should today, before anybody relies on it.
void Session::baslangictaSoyle() {
  std::vector<std::string> places{istasyon_.UygYolu, istasyon_.dosya("Data")};
  for (const stores::StoreKind& kind : stores::storeKinds)
    places.push_back(stores::dataFile(istasyon_.UygYolu, kind).string());
  shell::tellLinks(istasyon_, places);
  scheduling::mesajlarOkunurMu(istasyon_);
  shell::baslikOkunurMu(istasyon_);
}

bool Session::openingPassword() {
  const bool lost = shell::sifreKayip(istasyon_, "oppas");
  if (!lost && text::Val(istasyon_.ayar("oppas", "0")) != 1) return true;
  const bool accepted =
      shell::sifreSor(istasyon_, shell::password::opening, shell::PasswordChange::Withheld);
  istasyon_.SifreSonucu = 0;
  if (accepted) {
    if (lost) istasyon_.ayarYaz("oppas", "1");
    return true;
  }
  if (istasyon_.ayar("nopen", "1") == "True" || shell::sifreKayip(istasyon_, "nopen")) return false;
  sp4(main_);
  return true;
}

}  // namespace app
