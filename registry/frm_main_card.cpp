// The card's record: load, save, new, delete.
#include <array>

#include "platform/text/utf8.h"
#include "registry/card_fields.h"
#include "registry/frm_main.h"
#include "shell/age.h"
#include "shell/blood_groups.h"
#include "shell/fault_words.h"
#include "shell/list_completion.h"
#include "shell/patient_lock.h"
#include "shell/phrases.h"
#include "shell/snapshot.h"
#include "shell/speciality.h"
#include "shell/text_lookup.h"
#include "stores/patient_cascade.h"
#include "stores/value_list.h"

namespace registry {

namespace {

using stores::PatientCascade;

constexpr int female = 0;
constexpr int male = 1;
constexpr int unknownSex = 2;
constexpr forms::Colour femaleColour = forms::fromBgr(0xC0C0FF);
constexpr forms::Colour maleColour = forms::fromBgr(0xFFC0C0);

}  // namespace

void FrmMain::kartiBagla() {
  Txtİsim.LostFocus.connect([this] {
    isimBitti();
    tuskontrol();
  });
  Txtİsim.KeyUp.connect([this](forms::Key) { isimYazildi(); });
  Lstdat.noteOf = [this](const std::string& name) { return adasNotu(name); };
  Lstdat.Click.connect([this] { hastaSec(Lstdat.text()); });
  TxtEskiİsim.Change.connect([this] { baskiTuslari(); });
  TxtDTarihi.GotFocus.connect([this] { shell::hepsinisec(*this); });
  TxtDTarihi.LostFocus.connect([this] { dogumBitti(); });
  Txtyaş.LostFocus.connect([this] { yasBitti(); });
  Txtyaş.KeyPress.connect([](char32_t& typed) { typed = typed == U'-' ? U'1' : typed; });
  ComCinsiyet.Change.connect([this] { cinsiyetYazildi(); });
  ComCinsiyet.Click.connect([this] { Cinsiyetrengi(); });
  TabStrip1.Click.connect([this] { sekmeSecildi(); });
  Butfoto.Click.connect([this] { fotoSec(); });
  txtfoto.Change.connect([this] { ResimBoyutla(); });
  ImgFoto.DblClick.connect([this] { istasyon.ekranAc("frmmax"); });
  ImgFoto.Resize.connect([this](int panelWidth, int panelHeight) {
    panofoto_ = {panelWidth, panelHeight};
    ResimBoyutla();
  });
  shell::completeWhileTyping(ComKanGrubu);
  for (const ListField& row : listFields()) {
    shell::completeWhileTyping(static_cast<forms::ComboBox&>(row.control(*this)));
  }
}

void FrmMain::Listeleriyaz() {
  ComCinsiyet.setItems({metinbul(istasyon, "kadin"), metinbul(istasyon, "Erkek"), ""});
  ComKanGrubu.setItems({shell::bloodGroups.begin(), shell::bloodGroups.end()});
  for (const ListField& row : listFields()) {
    static_cast<forms::ComboBox&>(row.control(*this))
        .setItems(stores::values(istasyon.stores.personal, row.table));
  }
}

bool FrmMain::hastaoku() {
  const Taken taken = hastayiTut();
  if (taken == Taken::Elsewhere) {
    std::string told = istasyon.SeciliHasta + metinbul(istasyon, "msgagdaislem");
    if (baskaIstasyon_ > 0)
      told += "\n(" + phrase(istasyon, shell::Phrase::StationNumber) +
              std::to_string(baskaIstasyon_) + ")";
    istasyon.bilgi(told);
    Txtİsim.setText(TxtEskiİsim.text());
  }
  if (taken != Taken::Ours) {
    istasyon.SeciliHasta = TxtEskiİsim.text();
    return false;
  }
  hastayiYukle();
  return true;
}

void FrmMain::hastayiYukle() {
  dao::Recordset& cards = tablo();
  const bool hidden = gizliMi(cards.Fields("Key").text());
  alanlariYukle();
  if (hidden) Txtİsim.setText("");
  istasyon.SeciliHasta = cards.Fields("Name").text();
  // The key as it is stored, blanks and all.
  TxtEskiİsim.setText(hidden ? std::string() : istasyon.SeciliHasta);
  gizliYuklu_ = hidden;
  Txtyaş.setVisible(false);
  const std::string year = cards.Fields("Year of Birth").text();
  const auto date = cards.Fields("Date of Birth").Value().date();
  TxtDTarihi.setText(!year.empty() ? year : date ? text::shortDate(*date) : std::string());
  yasGoster();
  listeyiKapat();
  etkinlestir(mnusil, "Delete", !hidden);
  ButtonsForPatient();
  durumYaz({});
}

// The card and, under another name, all that carried the old one: everything or nothing.
dao::Status FrmMain::kartiYaz() {
  const std::string name = Txtİsim.text();
  const std::string old = TxtEskiİsim.text().empty() ? name : TxtEskiİsim.text();
  const auto work = old == name ? PatientCascade::Work::Store : PatientCascade::Work::Rename;
  auto change = PatientCascade::begin(istasyon.stores, work);
  if (!change) return change.error();
  dao::Status status = old == name ? dao::Status() : change->rename(old, name);
  if (status) status = satiriYaz(old);
  if (!status) return status;
  listelereEkle();
  return change->commit();
}

// A card that another station deleted or renamed meanwhile is stored anew, under the name on the
// screen.
dao::Status FrmMain::satiriYaz(const std::string& key) {
  const dao::Status sought = tablo().Seek("=", key);
  if (!sought) return sought;
  // A namesake that another station has just stored is asked about by the next save.
  if (TxtEskiİsim.text().empty() && !tablo().NoMatch()) return isimAlinmis(key);
  const bool stored = !tablo().NoMatch();
  const dao::Status begun = stored ? tablo().Edit() : tablo().AddNew();
  if (!begun) return begun;
  if (stored) keepStoredMark();
  const dao::Status moved = Forumalanlaritasi();
  const dao::Status updated = moved ? tablo().Update() : moved;
  if (!updated) tablo().CancelUpdate();
  return updated;
}

// Another station may have hidden the patient meanwhile, or shown.
void FrmMain::keepStoredMark() {
  if (fieldChanged(txtkey)) return;
  const std::string mark = text::trim(tablo().Fields("Key").text());
  setSavedText(txtkey, mark);
  txtkey.setText(mark);
}

// A value that its list refuses, such as one wider than the list's column, stays on the card alone.
void FrmMain::listelereEkle() {
  for (const ListField& row : listFields()) {
    const std::string value = text::left(text::trim(row.control(*this).snapshotText()), row.cut);
    stores::addValue(istasyon.stores.personal, row.table, value).ignore();
  }
}

// A failed write leaves the card as it is, still to be saved: what was typed is not lost.
void FrmMain::kayityap() {
  if (!hatalitarih()) return;
  Txtİsim.setText(text::trim(Txtİsim.text()));
  if (!isimDegistiSor(Txtİsim, TxtEskiİsim.text())) return;
  const dao::Status written = tutarakYaz();
  if (!written) return kaydedilemedi(written);
  TxtEskiİsim.setText(Txtİsim.text());
  hastayiGoster(Txtİsim.text());
  kaydedildi();
}

// A name that another patient has meanwhile, or that was never left, is asked about before it is
// written.
void FrmMain::Kaydet() {
  if (isimBitti() == NameCheck::Kept) kayityap();
}

dao::Status FrmMain::Forumalanlaritasi() {
  dao::Recordset& cards = tablo();
  const dao::Status moved = RecordScreen::Forumalanlaritasi();
  const std::string birth = text::trim(TxtDTarihi.text());
  const bool isYear = shell::yilMi(birth);
  const auto date = isYear ? std::nullopt : text::parseDate(birth, istasyon.clock.today());
  const dao::Status dateSet =
      cards.Fields("Date of Birth").Set(date ? dao::Value(*date) : dao::Value());
  const dao::Status yearSet = cards.Fields("Year of Birth").Set(isYear ? birth : std::string());
  if (!moved) return moved;
  return dateSet ? yearSet : dateSet;
}

// The birth field that was left for an empty card asks for no age.
void FrmMain::Yeni() {
  birthUnchecked_ = true;
  alanlaribosalt();
  Eskialanmain();
  yonEtkin(Direction::Back, true);
  yonEtkin(Direction::Forward, true);
  TabStrip1.select("TSKişisel");
  Txtİsim.setFocus();
  birthUnchecked_ = false;
}

void FrmMain::alanlaribosalt() {
  gizliYuklu_ = false;
  TxtEskiİsim.setText("");
  Txtyaş.setText("");
  ComCinsiyet.setListIndex(unknownSex);
  RecordScreen::alanlaribosalt();
  Txtyaş.setVisible(false);
  txtyaşı.setCaption("");
  istasyon.SeciliHasta.clear();
  shell::hastaBirak(istasyon);
  listeyiKapat();
  ButtonsForPatient();
  durumYaz({});
}

void FrmMain::Sil() {
  if (TxtEskiİsim.text().empty() || TxtEskiİsim.text() != Txtİsim.text()) return;
  if (!tablo().Seek("=", TxtEskiİsim.text()) || tablo().NoMatch()) return;
  if (!istasyon.confirmLoss(Txtİsim.text() + metinbul(istasyon, "msgsilinecekkayit"))) return;
  const dao::Status deleted = hastayiSil(TxtEskiİsim.text());
  if (!deleted) return shell::hataSoyle(istasyon, deleted);
  Listeleriyaz();
  alanlaribosalt();
  Eskialanmain();
}

// Sought anew behind the question: another station may have been quicker.
dao::Status FrmMain::hastayiSil(const std::string& name) {
  auto change = PatientCascade::begin(istasyon.stores, PatientCascade::Work::Delete);
  if (!change) return change.error();
  dao::Status status = tablo().Seek("=", name);
  if (status && !tablo().NoMatch()) status = tablo().Delete();
  if (status) status = change->digerkayitlarisil(name);
  return status ? change->commit() : status;
}

bool FrmMain::kaydedilebilir() {
  return !gizliYuklu_ && !text::trimmed(Txtİsim.text()).empty() &&
         shell::gecerliDogum(text::trimmed(TxtDTarihi.text()), istasyon.clock.today());
}

std::vector<std::string> FrmMain::missing() {
  if (gizliYuklu_) return {phrase(istasyon, shell::Phrase::NameLockOpen)};
  std::vector<std::string> wanting;
  if (text::trimmed(Txtİsim.text()).empty()) wanting.push_back(wordsOf(Txtİsim));
  if (!shell::gecerliDogum(text::trimmed(TxtDTarihi.text()), istasyon.clock.today()))
    wanting.push_back(wordsOf(TxtDTarihi));
  return wanting;
}

// A name is typed to find somebody until its field is left.
bool FrmMain::hasTypedText() {
  return anyFieldChanged(activeControl() == &Txtİsim ? &Txtİsim : nullptr);
}

void FrmMain::saveIsOff() {
  if (activeControl() == &Txtyaş) yasBitti();
  if (mnukaydet.enabled()) return mnukaydet.Click();
  if (hatalitarih()) RecordScreen::saveIsOff();
}

void FrmMain::Cinsiyetrengi() {
  const int sex = ComCinsiyet.listIndex();
  Panofoto.setBackColour(sex == female ? forms::OptionalColour(femaleColour)
                         : sex == male ? forms::OptionalColour(maleColour)
                                       : std::nullopt);
  BKadınDoğum.setEnabled(sex != male);
  cinsiyet_ = sex;
}

// One letter is enough: the beginning of a row chooses the row. Any other leaves the choice as it
// was.
void FrmMain::cinsiyetYazildi() {
  const int row = shell::rowOfFirstLetter(ComCinsiyet);
  if (row >= 0) ComCinsiyet.setListIndex(row);
  if (ComCinsiyet.listIndex() < 0) ComCinsiyet.setListIndex(cinsiyet_);
  // A row that was typed in full is the chosen one already, and no Click tells of it.
  Cinsiyetrengi();
}

void FrmMain::sekmeSecildi() {
  struct Page {
    std::string_view tab;
    forms::Panel& panel;
    forms::Control& first;
  };
  const std::array<Page, 4> pages{{{"TSKişisel", PKişisel, ComKanGrubu},
                                   {"TSAdres", PAdres, ComHitap},
                                   {"TSKurum", PKurum, ComKurum},
                                   {"TSNot", PNot, txtnot}}};
  for (const Page& page : pages) page.panel.setVisible(page.tab == TabStrip1.selected());
  for (const Page& page : pages) {
    if (page.tab == TabStrip1.selected()) page.first.setFocus();
  }
}

void FrmMain::fotoSec() {
  const auto chosen = istasyon.host.openFile({.title = Butfoto.caption(),
                                              .filters = {"*.bmp", "*.jpg", "*.ico"},
                                              .folder = istasyon.dosya("Image")});
  if (chosen) txtfoto.setText(*chosen);
}

// A file that is no picture leaves the frame empty; the field keeps its path.
void FrmMain::ResimBoyutla() {
  const auto size =
      txtfoto.text().empty() ? std::nullopt : istasyon.host.pictureSize(txtfoto.text());
  ImgFoto.setPath(size ? txtfoto.text() : std::string());
  ImgFoto.setFrame(size ? fitted({size->width, size->height}, panofoto_) : forms::Picture::Frame());
}

}  // namespace registry
