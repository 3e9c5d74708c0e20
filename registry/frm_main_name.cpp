// The name field: search as you type, the list under it, and the rule that tells namesakes apart.
#include <algorithm>

#include "platform/dao/prefix_search.h"
#include "platform/text/utf8.h"
#include "registry/frm_main.h"
#include "shell/fault_words.h"
#include "shell/frm_pass.h"
#include "shell/phrases.h"
#include "shell/speciality.h"
#include "shell/text_lookup.h"

namespace registry {

namespace {

constexpr std::size_t nameWidth = 40;

// The name with one more mark; a name that fills its field gives up its last letter for it.
std::string withMark(const std::string& name) {
  if (text::length(name) < nameWidth) return name + "*";
  const std::string bare = shell::RecordScreen::sisim(name);
  const std::string marks = name.substr(bare.size());
  return text::left(bare, static_cast<std::ptrdiff_t>(text::length(bare)) - 1) + marks + "*";
}

}  // namespace

bool FrmMain::gizliMi(std::string_view key) const {
  const forms::ToolButton* const locked = tbToolBar.button("keyclose");
  return locked != nullptr && locked->visible && text::trimmed(key) == hiddenMark;
}

void FrmMain::isimleriAc(bool unlocked) {
  // Whoever is hidden leaves the screen with the lock.
  const bool leaves = !unlocked && text::trimmed(txtkey.text()) == hiddenMark;
  const bool mayLeave = !leaves || secimdenOnce();
  if (!mayLeave && unanswered()) return;
  const auto show = [this](forms::MenuItem& entry, std::string_view key, bool visible) {
    entry.setVisible(visible);
    tbToolBar.setButtonVisible(key, visible);
  };
  show(mnuShowHidden, "keyclose", !unlocked);
  show(mnuLockHidden, "keyopen", unlocked);
  show(mnuChooseHidden, "idpass", unlocked && istasyon.screens.has("Frmkey"));
  listeyiKapat();
  gunlukListele();
  if (leaves && mayLeave) Yeni();
  baskiTuslari();
}

void FrmMain::isimSifresi() {
  if (!shell::sifreSor(istasyon, shell::password::names)) return;
  istasyon.SifreSonucu = 0;
  isimleriAc(true);
}

void FrmMain::hesaplariAc() {
  const bool asked = istasyon.ayar("accpas", "0") != "0" || shell::sifreKayip(istasyon, "accpas");
  if (asked && !shell::sifreSor(istasyon, shell::password::accounts)) return;
  istasyon.SifreSonucu = 0;
  ekranAc(mnuhesaplar, "frmaccount");
}

// The card carries the mark along: it must not write an old one back.
void FrmMain::gizlileriSec() {
  istasyon.ekranAc("Frmkey");
  listeyiKapat();
  gunlukListele();
  dao::Recordset& cards = tablo();
  if (TxtEskiİsim.text().empty() || !cards.Seek("=", TxtEskiİsim.text()) || cards.NoMatch()) return;
  const std::string mark = text::trim(cards.Fields("Key").text());
  setSavedText(txtkey, mark);
  txtkey.setText(mark);
}

// A key that left the text as it was, such as Ctrl coming up after Ctrl+S, asks for no list.
void FrmMain::isimYazildi() {
  if (Txtİsim.text().empty()) return listeyiKapat();
  const bool listOpen = !aranan_.empty();
  if (Txtİsim.text() != aranan_ && (listOpen || Txtİsim.text() != TxtEskiİsim.text()))
    idk.setCaption("0");
}

void FrmMain::datlistele() {
  listeyiBaslat(dao::Fold::General);
}
void FrmMain::datlisteleTUR() {
  listeyiBaslat(dao::Fold::Turkish);
}

void FrmMain::listeyiBaslat(dao::Fold fold) {
  listeyiKapat();
  aranan_ = Txtİsim.text();
  const auto hidden = gizliMi(hiddenMark) ? HiddenPatients::PassedOver : HiddenPatients::Shown;
  const platform::Status started =
      isimler_.start(istasyon.stores.personal.database, Txtİsim.text(), fold, hidden);
  if (!started) return durumYaz(shell::kisaNedeni(istasyon, started));
  listeyiSurdur();
}

// One slice of the search; the rest is put off so that keys are answered in between.
void FrmMain::listeyiSurdur() {
  listeBekliyor_ = false;
  const bool done = isimler_.step();
  Lstdat.appendItems(isimler_.take());
  Lstdat.setVisibleRows(static_cast<int>(Lstdat.count()));
  Lstdat.setVisible(Lstdat.count() > 0);
  if (done) return listeyiSay();
  listeBekliyor_ = true;
  // Of several searches only the last goes on.
  istasyon.host.later([this, alive = yasiyor_, turn = ++aramaSirasi_] {
    if (*alive && listeBekliyor_ && turn == aramaSirasi_) listeyiSurdur();
  });
}

void FrmMain::listeyiSay() {
  const std::size_t count = Lstdat.count();
  if (count > 0)
    return durumYaz(phrase(istasyon, shell::Phrase::PatientCount) + std::to_string(count));
  durumYaz(aranan_.empty() ? std::string() : phrase(istasyon, shell::Phrase::NoNameFound));
}

void FrmMain::listeyiKapat() {
  isimler_.stop();
  adasNotlari_.forget();
  listeBekliyor_ = false;
  aranan_.clear();
  idk.setCaption("6");
  Lstdat.clear();
  Lstdat.setVisible(false);
}

std::string FrmMain::adasNotu(const std::string& name) {
  const auto hidden = gizliMi(hiddenMark) ? HiddenPatients::PassedOver : HiddenPatients::Shown;
  return adasNotlari_.of(istasyon.stores.personal.database, name, hidden);
}

void FrmMain::hastaSec(const std::string& name) {
  if (secimdenOnce()) hastayiGoster(name);
  listeyiKapat();
}

bool FrmMain::hastayiGoster(const std::string& name) {
  istasyon.SeciliHasta = name;
  if (!hastaoku()) return false;
  Eskialanmain();
  return true;
}

bool FrmMain::secimdenOnce() {
  if (TxtEskiİsim.text().empty()) return kayitkontrol();
  // What stands in the name field was typed to find somebody; the other fields belong to the old
  // name.
  Txtİsim.setText(TxtEskiİsim.text());
  return kayitkontrol();
}

FrmMain::NameCheck FrmMain::isimBitti() {
  Lstdat.setVisible(false);
  const bool listed = Lstdat.count() == 1 && !isimler_.running() && aranan_ == Txtİsim.text();
  const std::string only = listed ? Lstdat.items().front().text : std::string();
  listeyiKapat();
  Txtİsim.setText(text::trim(Txtİsim.text()));
  if (Txtİsim.text().empty() || Txtİsim.text() == TxtEskiİsim.text()) return NameCheck::Kept;
  if (listed && text::length(Txtİsim.text()) == text::length(only))
    Txtİsim.setText(only);
  else if (const auto stored = otherSpelling(Txtİsim.text()))
    Txtİsim.setText(*stored);
  if (adasSor() == NameCheck::NotKept) return NameCheck::NotKept;
  const bool sexChosen = ComCinsiyet.listIndex() == 0 || ComCinsiyet.listIndex() == 1;
  if (istasyon.BransKodu == shell::brans::koduKadinDogum && !sexChosen) ComCinsiyet.setListIndex(0);
  return NameCheck::Kept;
}

// While the name belongs to another patient: that one is loaded, or the name gets one more mark.
// Without an answer the name is still being typed.
FrmMain::NameCheck FrmMain::adasSor() {
  while (baskaHasta(Txtİsim.text())) {
    const std::string name = Txtİsim.text();
    const host::Answer answer = istasyon.askAboutText(name + metinbul(istasyon, "msgisimtekrari"));
    if (answer == host::Answer::No) loadNamesake(name);
    if (answer == host::Answer::Cancel) backToName();
    if (answer != host::Answer::Yes) return NameCheck::NotKept;
    Txtİsim.setText(withMark(name));
  }
  return NameCheck::Kept;
}

void FrmMain::backToName() {
  birthUnchecked_ = true;
  Txtİsim.setFocus();
  birthUnchecked_ = false;
}

// On a new card the name alone was typed to find somebody.
void FrmMain::loadNamesake(const std::string& name) {
  const bool onNewCard = TxtEskiİsim.text().empty();
  const bool goOn = onNewCard ? !anyFieldChanged(&Txtİsim) || askToLoseTyped() : secimdenOnce();
  if (goOn) hastayiGoster(name);
}

std::optional<std::string> FrmMain::otherSpelling(const std::string& name) {
  dao::Recordset& cards = tablo();
  if (!cards.Seek("=", name) || !cards.NoMatch()) return std::nullopt;
  const dao::Fold fold = istasyon.turkce() ? dao::Fold::Turkish : dao::Fold::General;
  auto reader =
      dao::PrefixReader::open(istasyon.stores.personal.database, "IDCard", "Name", fold, name);
  if (!reader) return std::nullopt;
  for (auto done = reader->step(); done && !*done;) done = reader->step();
  for (const dao::PrefixRow& row : reader->rows()) {
    const bool own = row.name == TxtEskiİsim.text();
    if (!own && text::length(row.name) == text::length(name)) return std::string(row.name);
  }
  return std::nullopt;
}

// The patient on the card is no namesake of itself, whatever the case of the letters.
bool FrmMain::baskaHasta(const std::string& name) {
  dao::Recordset& cards = tablo();
  if (!cards.Seek("=", name) || cards.NoMatch()) return false;
  return cards.Fields("Name").text() != TxtEskiİsim.text();
}

}  // namespace registry
