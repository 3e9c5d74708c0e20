// Menus and toolbar of the main window: which entry does what.
#include <array>
#include <utility>

#include "registry/frm_main.h"
#include "shell/phrases.h"
#include "shell/speciality.h"
#include "shell/text_lookup.h"

namespace registry {

namespace {

struct EntryScreen {
  forms::MenuItem FrmMain::*entry;
  std::string_view screen;
};

// The screen behind each entry, by its name in the screen directory.
constexpr std::array<EntryScreen, 37> entryScreens{{
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

constexpr std::array<std::pair<std::string_view, forms::MenuItem FrmMain::*>, 3> ownButtons{{
    {"Geri", &FrmMain::mnugeri},
    {"ileri", &FrmMain::mnuileri},
    {"Exit", &FrmMain::mnucik},
}};

}  // namespace

void FrmMain::araclariKur() {
  const auto group = [this](std::initializer_list<const char*> keys) {
    for (const char* key : keys) tbToolBar.addButton(key, key);
    tbToolBar.addSeparator();
  };
  group({"New", "Save", "Delete"});
  group({"Geri", "ileri", "Find"});
  group({"muayene", "smok"});
  group({"keyclose", "keyopen", "idpass"});
  tbToolBar.addButton("Exit", "Exit");
  tbToolBar.ButtonClick.connect([this](std::string_view key) { tusBas(key); });
}

void FrmMain::menuleriBagla() {
  for (const EntryScreen& row : entryScreens) {
    (this->*row.entry).Click.connect([this, &row] { ekranAc(this->*row.entry, row.screen); });
  }
  mnuraporara.Click.connect([this] {
    const bool pathology = istasyon.BransNo == shell::brans::pathology;
    ekranAc(mnuraporara, pathology ? "frmsearchpat" : "frmsearchrad");
  });
  mnuyeni.Click.connect([this] {
    if (kayitkontrol()) Yeni();
  });
  mnugeri.Click.connect([this] { adim(Direction::Back); });
  mnuileri.Click.connect([this] { adim(Direction::Forward); });
  mnucik.Click.connect([this] { istasyon.host.close(*this); });
  // Undo, cut, copy and paste belong to the focused field: the window sends them the usual
  // keystrokes.
  mnugerial.Click.connect([this] { istasyon.host.sendKeys("^z"); });
  mnukes.Click.connect([this] { istasyon.host.sendKeys("+{DELETE}"); });
  mnukopyala.Click.connect([this] { istasyon.host.sendKeys("^{INSERT}"); });
  mnuyapıştır.Click.connect([this] { istasyon.host.sendKeys("+{INSERT}"); });
  mnugeri.setShortcut("Ctrl+PgUp");
  mnuileri.setShortcut("Ctrl+PgDown");
  mnubul.setShortcut("Ctrl+F");
  mnuhakkinda.setShortcut("F1");
  mnuonizleme.setVisible(istasyon.screens.has("frmprewive"));
  mnuyazdır.setVisible(istasyon.screens.has("frmprewive"));
  for (forms::OptionButton* option : branslar) {
    option->Click.connect([this, option] {
      shell::bransSec(istasyon, *this, option->name());
      sbDurum.setPanel(5, caption());
      muayenetusuboya();
    });
  }
}

void FrmMain::ekranAc(const forms::MenuItem& entry, std::string_view screen) {
  if (istasyon.screens.has(screen)) return istasyon.ekranAc(screen);
  istasyon.bilgi(entry.caption().substr(1) + phrase(istasyon, shell::Phrase::NotInThisVersion));
}

void FrmMain::tusBas(std::string_view key) {
  if (key == "New") return mnuyeni.press();
  if (key == "Save") return mnukaydet.press();
  if (key == "Delete") return mnusil.press();
  if (key == "Find") return mnubul.press();
  if (key == "muayene") return muayenetus();
  if (key == "smok") return mnusigarabp.press();
  if (key == "keyclose") return isimSifresi();
  if (key == "keyopen") return isimleriAc(false);
  if (key == "idpass") return istasyon.ekranAc("Frmkey");
  for (const auto& [button, entry] : ownButtons) {
    if (key == button) return (this->*entry).press();
  }
}

void FrmMain::muayenetus() {
  auto* const entry =
      dynamic_cast<forms::MenuItem*>(find(shell::examinationEntry(istasyon.BransNo)));
  // The entry itself may be hidden after a switch of the speciality; the button is the way to it
  // then.
  if (entry != nullptr && entry->enabled()) entry->Click();
}

void FrmMain::muayenetusuboya() {
  dao::Recordset& visit = istasyon.stores.clinical.Visit;
  const bool found = visit.isOpen() &&
                     visit.Seek("=", istasyon.BransAdi + "\\" + TxtEskiİsim.text()) &&
                     !visit.NoMatch();
  const auto visits =
      found && !TxtEskiİsim.text().empty() ? shell::Visits::Some : shell::Visits::None;
  tbToolBar.setButtonImage("muayene", shell::visitImage(istasyon.BransNo, visits));
}

void FrmMain::tuskontrol() {
  const bool wasChanged = mnukaydet.enabled();
  RecordScreen::tuskontrol();
  const bool clinical = kaydedilebilir();
  for (forms::MenuItem FrmMain::*entry : clinicalEntries) (this->*entry).setEnabled(clinical);
  tbToolBar.setButtonEnabled("muayene", clinical);
  tbToolBar.setButtonEnabled("smok", clinical);
  mnuonizleme.setEnabled(mnuyeni.enabled());
  mnuyazdır.setEnabled(mnuyeni.enabled());
  if (mnukaydet.enabled()) return durumYaz(phrase(istasyon, shell::Phrase::StateChanged));
  if (wasChanged) durumYaz({});
}

void FrmMain::yonEtkin(Direction direction, bool enabled) {
  if (direction == Direction::Back) return etkinlestir(mnugeri, "Geri", enabled);
  etkinlestir(mnuileri, "ileri", enabled);
}

// Stepping away from a changed card stores it without a question.
void FrmMain::adim(Direction direction) {
  if (mnukaydet.enabled()) Kaydet();
  if (mnukaydet.enabled()) return;  // refused: what was typed stays
  const bool back = direction == Direction::Back;
  dao::Recordset& cards = tablo();
  if (cards.empty()) return;
  bool found = false;
  if (Txtİsim.text().empty()) {
    found = (back ? cards.MoveLast() : cards.MoveFirst()).ok();
  } else {
    found = cards.Seek(back ? "<" : ">", Txtİsim.text()) && !cards.NoMatch();
  }
  while (found && gizliMi(cards.Fields("Key").text())) {
    found = (back ? cards.MovePrevious() : cards.MoveNext()) && !cards.Eof() && !cards.Bof();
  }
  if (!found) return yonEtkin(direction, false);
  hastayiGoster(cards.Fields("Name").text());
  yonEtkin(back ? Direction::Forward : Direction::Back, true);
}

}  // namespace registry
