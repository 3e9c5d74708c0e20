#include "registry/frm_main.h"

#include <array>

#include "platform/files/folders.h"
#include "platform/text/number.h"
#include "registry/card_fields.h"
#include "shell/backup.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/menu_icons.h"
#include "shell/phrases.h"
#include "shell/speciality.h"
#include "shell/store_opening.h"
#include "shell/text_lookup.h"
#include "shell/window_settings.h"

namespace registry {

namespace {

constexpr int tickMilliseconds = 50;
constexpr unsigned ticksPerLook = 20;
constexpr unsigned ticksPerDayList = 200;
constexpr int defaultWidth = 1240;
constexpr int defaultHeight = 780;
constexpr auto letterheadAlone = "4";  // the name is the first line of the text
constexpr auto windowName = "Main";
constexpr std::array stateControls{"TxtEskiİsim", "txtkey", "txtfoto", "idk", "Lresim", "Netsıra"};

}  // namespace

FrmMain::FrmMain(Station& station) : RecordScreen(station, "FrmMain") {
  istasyon.kart = this;
  width = defaultWidth;
  height = defaultHeight;
  for (const char* name : stateControls) find(name)->setVisible(false);
  Lstdat.setVisible(false);
  Txtyaş.setVisible(false);
  Pexam.setVisible(false);
  Picbranslar.setVisible(false);
  idk.setCaption("6");
  baski.lblsablonno.setCaption(letterheadAlone);
  Timer1.setInterval(tickMilliseconds);
  Timer1.Tick.connect([this] { saatVurusu(); });
  araclariKur();
  menuleriBagla();
  kartiBagla();
  gunuBagla();
  alanlariBagla();
}

FrmMain::~FrmMain() {
  *yasiyor_ = false;
  istasyon.kart = nullptr;
}

std::span<const shell::FieldRow> FrmMain::alanlar() const {
  return cardFields();
}

void FrmMain::Load() {
  shell::bransmenusu(istasyon, *this);
  klasorleriAc();
  acildi_ = netAc();
  if (!acildi_) return;
  depolariAc();
  basliklariYenile();
  netacilis();  // before the lists: what a crash has damaged is mended first
  Listeleriyaz();
  alanlaribosalt();
  Eskialanmain();
  tuskontrol();
  baski.Setkayitlarioku();
  bugun_ = istasyon.clock.today();
  gunuGoster(bugun_);
  ayarlarioku();
  isimleriAc(false);
  tbToolBar.setButtonEnabled("muayene", false);
  yonleriAc();
  istasyon.settings.set(shell::applicationName, istasyon.BransAdi, "Path", istasyon.UygYolu)
      .ignore();
  shell::menuikon(*this);
  sbDurum.setPanel(6, istasyon.UygYolu);
  Txtİsim.setFocus();
}

void FrmMain::depolariAc() {
  shell::depolariAc(istasyon);
  alanGenislikleri(istasyon.stores.personal.database, "IDCard");
}

void FrmMain::yonleriAc() {
  const bool anyone = !istasyon.stores.personal.IDCard.empty();
  yonEtkin(Direction::Back, anyone);
  yonEtkin(Direction::Forward, anyone);
}

// No other screen is open above the card then that has read its font record already.
void FrmMain::Activate() {
  if (shell::ayarDosyasiAc(istasyon)) baski.Setkayitlarioku();
  Pexam.setVisible(istasyon.acik("dexam"));
  gunlukListele();
}

bool FrmMain::QueryUnload() {
  return shell::cikistayedekle(istasyon) && kayitkontrol();
}

void FrmMain::Unload() {
  Timer1.setInterval(0);
  alanlaribosalt();
  ayarlariyaz();
  baski.setkayityaz().ignore();
  netkapanis();
}

// Folders that cannot be made are met again, with a message, by the first file that is wanted in
// them.
void FrmMain::klasorleriAc() {
  for (const char* folder : {"Data", "Image", "Documents", "Documents/Diseases"}) {
    files::createFolders(istasyon.dosya(folder)).ignore();
  }
}

void FrmMain::basliklariYenile() {
  RecordScreen::basliklariYenile();
  tbToolBar.setButtonToolTip("keyclose", mnuShowHidden.caption());
  tbToolBar.setButtonWord("keyclose", phrase(istasyon, shell::Phrase::HiddenNames));
  tbToolBar.setButtonToolTip("keyopen", mnuLockHidden.caption());
  tbToolBar.setButtonToolTip("idpass", mnuChooseHidden.caption());
  hakkindaYaz();
  gunlukBaslik();
  netDurumu();
}

// The workspace is set up anew for its words; on a polyclinic copy the chosen speciality stays the
// working one.
void FrmMain::dilDegisti() {
  const int sex = ComCinsiyet.listIndex();
  const int savedSex = ComCinsiyet.rowOf(savedText(ComCinsiyet));
  shell::bransmenusu(istasyon, *this);
  for (const forms::OptionButton* option : branslar) {
    if (option->value()) shell::bransSec(istasyon, *this, option->name());
  }
  basliklariYenile();
  sigaraGirisi();
  Listeleriyaz();
  if (savedSex >= 0)
    setSavedText(ComCinsiyet, ComCinsiyet.items()[static_cast<std::size_t>(savedSex)]);
  ComCinsiyet.setListIndex(sex);
  yasGoster();
  ButtonsForPatient();
  yeniMesaj(bekleyenMesaj_);
  tuskontrol();
}

void FrmMain::hakkindaYaz() {
  Lhakkinda.setCaption(phrase(istasyon, shell::Phrase::AboutText) + "\n" + istasyon.Surum);
  sbDurum.setPanel(5, caption());
}

void FrmMain::ayarlarioku() {
  shell::pencereOku(istasyon, *this, shell::mainSection, windowName, forms::WindowState::Maximised);
  Lresim.setCaption(istasyon.ayar("CurX", "1200"));
  PResim.setPath(istasyon.ayar("Picture"));
  sigaraGirisi();
}

void FrmMain::ayarlariyaz() {
  const platform::Status kept = shell::pencereYaz(istasyon, *this, shell::mainSection, windowName);
  if (!kept) shell::hataSoyle(istasyon, kept);
  istasyon.ayarYaz("CurX", Lresim.caption());
}

void FrmMain::sigaraGirisi() {
  const bool clinic = istasyon.BransNo == shell::brans::smoke;
  const bool shown =
      clinic || (istasyon.BransKodu == shell::brans::koduDahiliye && istasyon.acik("smok"));
  mnusigara.setVisible(shown);
  mnusigarabp.setVisible(shown);
  tbToolBar.setButtonVisible("smok", shown);
}

// What the user's other stations wrote into the settings.
void FrmMain::digerleriniGor() {
  const platform::Status seen = istasyon.settings.refresh();
  const bool firstTime = !seen && ayarlarOkunuyor_;
  ayarlarOkunuyor_ = seen.ok();
  if (firstTime) durumYaz(shell::kisaNedeni(istasyon, seen));
}

void FrmMain::saatVurusu() {
  const text::DateTime now = istasyon.clock.now();
  sbDurum.setPanel(1, text::shortDate(now));
  sbDurum.setPanel(2, text::shortTime(now));
  ++vurus_;
  if (vurus_ % ticksPerLook == 0) digerleriniGor();
  if (vurus_ % ticksPerDayList == 0) {
    gunuTazele();
    depolariYenidenDene();
    netYenidenDene();
  }
  const auto counter = text::wholeNumber(idk.caption()).value_or(6);
  if (counter == 6) return;
  idk.setCaption(std::to_string(counter + 1));
  if (counter + 1 != 1) return;
  istasyon.turkce() ? datlisteleTUR() : datlistele();
  idk.setCaption("6");
}

}  // namespace registry
