// Menus and toolbar of the main window: which entry does what.
#include <algorithm>
#include <array>
#include <utility>

#include "registry/frm_main.h"
#include "shell/patient_warning.h"
#include "shell/restore.h"
#include "shell/speciality.h"
#include "shell/text_lookup.h"
#include "stores/visit_ledger.h"

namespace registry {

namespace {

struct EntryScreen {
  forms::MenuItem FrmMain::*entry;
  std::string_view screen;
};

// The screen behind each entry, by its name in the screen directory.
constexpr std::array<EntryScreen, 39> entryScreens{{
    {&FrmMain::mnumuayene1, "FrmExam"},
    {&FrmMain::MnuMuayene2, "FrmExam"},
    {&FrmMain::MnuMuayene3, "FrmExam"},
    {&FrmMain::MnuMuayene4, "FrmExam"},
    {&FrmMain::MnuMuayene5, "FrmExam"},
    {&FrmMain::MnuMuayene6, "FrmExam"},
    {&FrmMain::MnuMuayene7, "FrmExam"},
    {&FrmMain::Mnumuayene9, "frmpathology"},
    {&FrmMain::MnuMuayene10, "FrmExam"},
    {&FrmMain::mnumuayene13, "frmsmok"},
    {&FrmMain::mnumuayene14, "FrmRad"},
    {&FrmMain::MnuMuayene20, "FrmExam"},
    {&FrmMain::mnutest, "frmtest"},
    {&FrmMain::mnuasi, "frmvaccin"},
    {&FrmMain::mnufizikgelişme, "frmpersantil"},
    {&FrmMain::mnumotmengelişme, "frmmotor"},
    {&FrmMain::mnugebetakip, "FrmGravid"},
    {&FrmMain::mnuameliyat, "frmoperation"},
    {&FrmMain::mnulens, "frmlens"},
    {&FrmMain::mnueko, "frmecho"},
    {&FrmMain::mnuefor, "frmefor"},
    {&FrmMain::mnuanjiyo, "frmangio"},
    {&FrmMain::mnusigarabp, "frmsmok"},
    {&FrmMain::mnugünlükmuayeneler, "frmdailyexam"},
    {&FrmMain::mnumuayenetarihleri, "frmexamdate"},
    {&FrmMain::mnulensstok, "frmlensstock"},
    {&FrmMain::mnubekdoğum, "frmsearchgrav"},
    {&FrmMain::mnubul, "FrmFind"},
    {&FrmMain::mnumuayeneara, "frmsearch"},
    {&FrmMain::mnutestara, "frmsearchtest"},
    {&FrmMain::mnuameliyatara, "frmsearchgen"},
    {&FrmMain::mnuekoara, "frmsearchgen"},
    {&FrmMain::mnueforara, "frmsearchgen"},
    {&FrmMain::mnuanjiyoara, "frmsearchgen"},
    {&FrmMain::mnulensara, "frmsearchlens"},
    {&FrmMain::mnusecenekler, "FrmOption"},
    {&FrmMain::mnumesajlar, "frmmesajlar"},
    {&FrmMain::mnuyedekle, "FrmSave"},
    {&FrmMain::mnuhakkinda, "frmabout"},
}};

// Enabled only for a patient with a name and a valid birth field.
constexpr std::array clinicalEntries{
    &FrmMain::mnumuayene1,  &FrmMain::MnuMuayene2,     &FrmMain::MnuMuayene3,
    &FrmMain::MnuMuayene4,  &FrmMain::MnuMuayene5,     &FrmMain::MnuMuayene6,
    &FrmMain::MnuMuayene7,  &FrmMain::Mnumuayene9,     &FrmMain::MnuMuayene10,
    &FrmMain::mnumuayene13, &FrmMain::mnumuayene14,    &FrmMain::MnuMuayene20,
    &FrmMain::mnuasi,       &FrmMain::mnufizikgelişme, &FrmMain::mnumotmengelişme,
    &FrmMain::mnugebetakip, &FrmMain::mnuameliyat,     &FrmMain::mnulens,
    &FrmMain::mnueko,       &FrmMain::mnuefor,         &FrmMain::mnuanjiyo,
    &FrmMain::mnutest,      &FrmMain::mnusigara,       &FrmMain::mnumuayenetarihleri};

}  // namespace

void FrmMain::araclariKur() {
  tusGrubu({"New", "Save", "Delete"});
  tusGrubu({"Geri", "ileri", "Find"});
  tusGrubu({"muayene", "smok"});
  tusGrubu({"keyclose", "keyopen", "idpass"});
  tusGrubu({"mesaj"});
  tbToolBar.addButton("Exit", "Exit");
}

void FrmMain::menuleriBagla() {
  for (const EntryScreen& row : entryScreens) {
    (this->*row.entry).Click.connect([this, &row] { ekranAc(this->*row.entry, row.screen); });
  }
  mnuraporara.Click.connect([this] {
    const bool pathology = istasyon.BransNo == shell::brans::pathology;
    ekranAc(mnuraporara, pathology ? "frmsearchpat" : "frmsearchrad");
  });
  mnuhesaplar.Click.connect([this] { hesaplariAc(); });
  mnuShowHidden.Click.connect([this] { isimSifresi(); });
  mnuLockHidden.Click.connect([this] { isimleriAc(false); });
  mnuChooseHidden.Click.connect([this] { gizlileriSec(); });
  mnuShowHidden.setShortcut("Ctrl+L");
  mnuLockHidden.setShortcut("Ctrl+L");
  mnuyeni.Click.connect([this] {
    if (kayitkontrol()) Yeni();
  });
  mnugeri.Click.connect([this] { adim(Direction::Back); });
  mnuileri.Click.connect([this] { adim(Direction::Forward); });
  mnugeriyukle.Click.connect([this] { mnugeriyukle_Click(); });
  mnuyedekdene.Click.connect([this] { shell::yedegiDene(istasyon); });
  mnudosyabakimi.Click.connect([this] {
    if (kayitkontrol()) dosyabakimi();
  });
  mnutamir.Click.connect([this] { Tamir2(); });
  mnugebekart.Click.connect([this] { Command1(); });
  mnugeri.setShortcut("Ctrl+PgUp");
  mnuileri.setShortcut("Ctrl+PgDown");
  mnubul.setShortcut("Ctrl+F");
  mnuhakkinda.setShortcut("F1");
  for (forms::OptionButton* option : branslar) {
    option->Click.connect([this, option] {
      shell::bransSec(istasyon, *this, option->name());
      sbDurum.setPanel(5, caption());
      ButtonsForPatient();
      gunlukListele();
    });
  }
}

// A record belongs to a stored card: what was typed on the card is saved first, with the questions
// that a save asks.
void FrmMain::ekranAc(const forms::MenuItem& entry, std::string_view screen) {
  const bool clinical = std::ranges::any_of(
      clinicalEntries, [&](forms::MenuItem FrmMain::*each) { return &(this->*each) == &entry; });
  if (clinical && istasyon.screens.has(screen) && !kartSaklandi()) return;
  istasyon.ekranAc(screen, entry.caption());
}

bool FrmMain::kartSaklandi() {
  if (mnukaydet.enabled()) Kaydet();
  return !mnukaydet.enabled() && !TxtEskiİsim.text().empty();
}

bool FrmMain::tusBas(std::string_view key) {
  if (RecordScreen::tusBas(key)) return true;
  if (key == "Geri") return mnugeri.press(), true;
  if (key == "ileri") return mnuileri.press(), true;
  if (key == "Find") return mnubul.press(), true;
  if (key == "muayene") return muayenetus(), true;
  if (key == "smok") return mnusigarabp.press(), true;
  if (key == "mesaj") return mnumesajlar.press(), true;
  if (key == "keyclose") return mnuShowHidden.Click(), true;
  if (key == "keyopen") return mnuLockHidden.Click(), true;
  if (key == "idpass") return mnuChooseHidden.Click(), true;
  return false;
}

void FrmMain::yeniMesaj(long count) {
  bekleyenMesaj_ = count;
  tbToolBar.setButtonImage("mesaj", count > 0 ? "mesajv" : "mesaj");
  const std::string caption = shell::metinbul(istasyon, count > 0 ? "yenimesajlar" : "Mesaj");
  tbToolBar.setButtonToolTip("mesaj",
                             count > 0 ? caption + " (" + std::to_string(count) + ")" : caption);
  sbDurum.setPanel(7, count > 0 ? tbToolBar.button("mesaj")->toolTip : std::string());
}

void FrmMain::muayenetus() {
  auto* const entry =
      dynamic_cast<forms::MenuItem*>(find(shell::examinationEntry(istasyon.BransNo)));
  // The entry itself may be hidden after a switch of the speciality; the button is the way to it
  // then.
  if (entry != nullptr && entry->enabled()) entry->Click();
}

void FrmMain::ButtonsForPatient() {
  const std::string& patient = TxtEskiİsim.text();
  shell::uyariGoster(istasyon, patient, lbluyarı);
  const bool any = !patient.empty() &&
                   stores::hasLedgerRow(
                       istasyon.stores.clinical.Visit,
                       stores::ledgerKey(istasyon.BransAdi, stores::kind::examination, patient));
  const auto visits = any ? shell::Visits::Some : shell::Visits::None;
  tbToolBar.setButtonImage("muayene", shell::visitImage(istasyon.BransNo, visits));
}

void FrmMain::tuskontrol() {
  RecordScreen::tuskontrol();
  const bool clinical = kaydedilebilir();
  for (forms::MenuItem FrmMain::*entry : clinicalEntries) (this->*entry).setEnabled(clinical);
  tbToolBar.setButtonEnabled("muayene", clinical);
  tbToolBar.setButtonEnabled("smok", clinical);
  baskiTuslari();
}

void FrmMain::yonEtkin(Direction direction, bool enabled) {
  if (direction == Direction::Back) return etkinlestir(mnugeri, "Geri", enabled);
  etkinlestir(mnuileri, "ileri", enabled);
}

// Stepping away from a changed card stores it without a question.
void FrmMain::adim(Direction direction) {
  if (mnukaydet.enabled()) {
    if (isimBitti() != NameCheck::Kept) return;  // a namesake was loaded instead
    kayityap();
    if (mnukaydet.enabled()) return;  // refused: what was typed stays
  } else if (!kayitkontrol()) {
    return;
  }
  const bool back = direction == Direction::Back;
  dao::Recordset& cards = tablo();
  if (cards.empty()) return;
  bool found = false;
  if (Txtİsim.text().empty()) {
    found = (back ? cards.MoveLast() : cards.MoveFirst()).ok();
  } else {
    found = cards.Seek(back ? "<" : ">", Txtİsim.text()) && !cards.NoMatch();
  }
  if (!ilkAcilan(direction, found)) return yonEtkin(direction, false);
  yonEtkin(back ? Direction::Forward : Direction::Back, true);
}

// From the current record on, the first card that may be shown. One that another station has open
// says so and is passed over.
bool FrmMain::ilkAcilan(Direction direction, bool found) {
  dao::Recordset& cards = tablo();
  const bool back = direction == Direction::Back;
  for (;;) {
    while (found && gizliMi(cards.Fields("Key").text())) {
      found = (back ? cards.MovePrevious() : cards.MoveNext()) && !cards.Eof() && !cards.Bof();
    }
    if (!found) return false;
    const std::string name = cards.Fields("Name").text();
    if (hastayiGoster(name)) return true;
    found = cards.Seek(back ? "<" : ">", name) && !cards.NoMatch();
  }
}

}  // namespace registry
