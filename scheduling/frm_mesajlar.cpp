#include "scheduling/frm_mesajlar.h"

#include <algorithm>
#include <map>

#include "platform/text/number.h"
#include "scheduling/frm_msg_gon.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/menu_icons.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"
#include "shell/window_settings.h"

namespace scheduling {

using files::Message;
using files::MessageRecord;
using shell::metinbul;
using shell::Phrase;

namespace {

constexpr int tickMilliseconds = 1000;
constexpr const char* ticksToRenewal = "10";
constexpr std::string_view windowName = "Messages";

// What tells notes apart, whatever their flags say.
std::string noteOf(const MessageRecord& record) {
  std::string note;
  for (const std::string& part :
       {record.sender, record.addressee, record.subject, record.sent, record.text})
    note.append(part).push_back('\0');
  return note;
}

}  // namespace

FrmMesajlar::FrmMesajlar(shell::Station& station) : Form("frmmesajlar"), istasyon_(station) {
  süre.setCaption("0");
  süreyenile.setCaption(ticksToRenewal);
  for (forms::Label* label : {&lblsırano, &süre, &süreyenile}) label->setVisible(false);
  txtmesaj.setLocked(true);
  menuleriBagla();
  for (std::size_t row = 0; row < messageViews.size(); ++row) {
    secenekler_[row]->Click.connect([this, row] { gorunumSec(messageViews[row].view); });
  }
  msgrid1.Click.connect([this] { satirSecildi(); });
  msgrid1.RowColChange.connect([this] { satirSecildi(); });
  msgrid1.DblClick.connect([this] { mnuyanıtla.press(); });
  Lmsgadres.DblClick.connect([this] { adresDegistir(); });
  Timer1.Tick.connect([this] { tik(); });
}

void FrmMesajlar::menuleriBagla() {
  struct Entry {
    const char* key;
    forms::MenuItem* item;
  };
  const std::array buttons{Entry{"yaz", &mnumesajyaz}, Entry{"yanit", &mnuyanıtla},
                           Entry{"al", &mnumesajal},   Entry{"sil", &mnusil},
                           Entry{"ayar", &mnuayar},    Entry{"Exit", &mnucik}};
  for (const Entry& entry : buttons) tbToolBar.addButton(entry.key, entry.key);
  tbToolBar.ButtonClick.connect([buttons](std::string_view key) {
    const auto* const pressed = std::ranges::find(buttons, key, &Entry::key);
    if (pressed != buttons.end()) pressed->item->press();
  });
  mnumesajyaz.setShortcut("Ctrl+N");
  mnuyanıtla.setShortcut("Ctrl+R");
  mnumesajal.setShortcut("F5");
  mnumesajyaz.Click.connect([this] { yaz({}, {}); });
  mnuyanıtla.Click.connect([this] { yanitla(); });
  mnumesajal.Click.connect([this] { Mesajyenile(); });
  mnusil.Click.connect([this] { sil(); });
  mnutümmesajlarısil.Click.connect([this] { tumunuSil(); });
  mnuadres.Click.connect([this] { adresDegistir(); });
  mnuayar.Click.connect([this] { ayarla(); });
  mnucik.Click.connect([this] { istasyon_.host.close(*this); });
}

void FrmMesajlar::Load() {
  shell::basliklariyaz(istasyon_, *this);
  shell::menuikon(*this);
  shell::pencereOku(istasyon_, *this, shell::mainSection, windowName);
  if (mesajAdresi(istasyon_).empty()) {
    mesajAdresiSor(istasyon_, metinbul(istasyon_, "inpgonderenismi"),
                   metinbul(istasyon_, "Kimden"));
  }
  msgrid1.setToolTip(phrase(istasyon_, Phrase::NoMessages));
  tbToolBar.setButtonToolTip("yanit", phrase(istasyon_, Phrase::Reply));
  adresGoster();
  gorunumSec(secilenGorunum(istasyon_).view);
  Timer1.setInterval(tickMilliseconds);
}

void FrmMesajlar::Unload() {
  Timer1.setInterval(0);
  // One that was deleted meanwhile has no flag to lose.
  files::changeMessages(mesajDosyasi(istasyon_), yeniGosterilen_, [](MessageRecord& record) {
    record.isNew = 0;
  }).ignore();
  shell::pencereYaz(istasyon_, *this, shell::mainSection, windowName).ignore();
}

void FrmMesajlar::gorunumSec(MessageView view) {
  const auto row = static_cast<std::size_t>(
      std::ranges::find(messageViews, view, &MessageViewRow::view) - messageViews.begin());
  // Turning it on comes back here.
  if (!secenekler_[row]->value()) return secenekler_[row]->setValue(true);
  gorunum_ = view;
  setCaption(metinbul(istasyon_, messageViews[row].title));
  Gridyaz();
}

void FrmMesajlar::Gridyaz() {
  bakilan_ = mesajDurumu(istasyon_);
  auto messages = mesajlar(istasyon_, gorunum_);
  if (!messages) return hataYaz(messages.error());
  const forms::Grid::Bulk bulk(msgrid1);
  msgrid1.setRows(1);
  msgrid1.setHeadings(std::array{metinbul(istasyon_, "Kimden"), metinbul(istasyon_, "Konu"),
                                 metinbul(istasyon_, "Tarih"), metinbul(istasyon_, "Metin")});
  listelenen_.clear();
  for (Message& message : *messages) satirEkle(message);
  msgrid1.dropChoice();
  secimYok();
  sayiGoster();
}

void FrmMesajlar::satirEkle(const Message& message) {
  const MessageRecord& record = message.record;
  std::string row = gosterilen(record.sender, Lines::One);
  for (const std::string& text : {record.subject, record.sent, record.text})
    row += '\t' + gosterilen(text, Lines::One);
  msgrid1.AddItem(row);
  const int added = msgrid1.rows() - 1;
  msgrid1.setRowData(added, message.number);
  if (record.isNew == 1) yeniEkle(added, message);
  listelenen_.push_back(message);
}

void FrmMesajlar::yeniEkle(int row, const Message& message) {
  vurgula(row, forms::Emphasis::Strong);
  const bool shownBefore = std::ranges::any_of(yeniGosterilen_, [&](const Message& each) {
    return each.number == message.number && each.record.isSameNote(message.record);
  });
  if (!shownBefore) yeniGosterilen_.push_back(message);
}

void FrmMesajlar::vurgula(int row, forms::Emphasis emphasis) {
  for (int col = 0; col < msgrid1.cols(); ++col) msgrid1.setEmphasis(row, col, emphasis);
}

Message* FrmMesajlar::secilen() {
  const int row = msgrid1.Row() - msgrid1.fixedRows();
  const bool chosen = row >= 0 && row < static_cast<int>(listelenen_.size());
  return chosen ? &listelenen_[static_cast<std::size_t>(row)] : nullptr;
}

void FrmMesajlar::satirSecildi() {
  Message* const message = secilen();
  if (message == nullptr) return;
  lblsırano.setCaption(std::to_string(message->number));
  for (forms::MenuItem* entry : {&mnusil, &mnuyanıtla}) entry->setEnabled(true);
  for (const char* key : {"sil", "yanit"}) tbToolBar.setButtonEnabled(key, true);
  txtmesaj.setText(gosterilen(message->record.text, Lines::Many));
  if (!kendiliginden_) okundu(*message);
}

void FrmMesajlar::secimYok() {
  lblsırano.setCaption({});
  for (forms::MenuItem* entry : {&mnusil, &mnuyanıtla}) entry->setEnabled(false);
  for (const char* key : {"sil", "yanit"}) tbToolBar.setButtonEnabled(key, false);
  txtmesaj.setText({});
}

// A note that was opened has been seen as well.
void FrmMesajlar::okundu(Message& message) {
  if (message.record.isRead == 1 && message.record.isNew == 0) return;
  const auto mark = [](MessageRecord& record) {
    record.isNew = 0;
    record.isRead = 1;
  };
  const platform::Status marked =
      files::changeMessages(mesajDosyasi(istasyon_), {&message, 1}, mark);
  if (!marked) return hataYaz(marked);
  mark(message.record);
  vurgula(msgrid1.Row(), forms::Emphasis::None);
  sayiGoster();
}

void FrmMesajlar::Mesajyenile() {
  if (Lmsgadres.caption() != mesajAdresi(istasyon_)) return adresDegisti();
  bakilan_ = mesajDurumu(istasyon_);
  const auto messages = mesajlar(istasyon_, gorunum_);
  if (!messages) return hataYaz(messages.error());
  std::map<std::string, int> listed;  // the same note may have been sent twice
  for (const Message& each : listelenen_) ++listed[noteOf(each.record)];
  const std::size_t before = listelenen_.size();
  for (const Message& message : *messages) {
    if (listed[noteOf(message.record)]-- <= 0) satirEkle(message);
  }
  if (listelenen_.size() == before) return;
  istasyon_.host.beep();
  sayiGoster();
  Sonsırayıseç();
}

// The newest one is in sight; it is read when the user goes to it.
void FrmMesajlar::Sonsırayıseç() {
  kendiliginden_ = true;
  msgrid1.setRow(msgrid1.rows() - 1);
  kendiliginden_ = false;
}

void FrmMesajlar::tik() {
  saat.setCaption(text::shortTime(istasyon_.clock.now()));
  const long passed = text::wholeNumber(süre.caption()).value_or(0) + 1;
  const bool due = passed >= text::wholeNumber(süreyenile.caption()).value_or(1);
  süre.setCaption(std::to_string(due ? 0 : passed));
  if (due && mesajDurumu(istasyon_) != bakilan_) Mesajyenile();
}

void FrmMesajlar::yaz(const std::string& kime, const std::string& konu) {
  istasyon_.ekranAc("Frmmsggon", mnumesajyaz.caption(), [&](forms::Form& form) {
    auto& writing = dynamic_cast<FrmMsgGon&>(form);
    writing.ComKime.setText(kime);
    writing.txtkonu.setText(konu);
  });
  Mesajyenile();
}

void FrmMesajlar::yanitla() {
  const Message* const message = secilen();
  if (message == nullptr) return;
  constexpr std::string_view answer = "Re: ";
  const std::string subject = gosterilen(message->record.subject, Lines::One);
  yaz(gosterilen(message->record.sender, Lines::One),
      subject.starts_with(answer) ? subject : std::string(answer) + subject);
}

void FrmMesajlar::sil() {
  const Message* const message = secilen();
  if (message == nullptr) return;
  const platform::Status deleted = files::deleteMessage(mesajDosyasi(istasyon_), *message);
  Gridyaz();
  // Somebody else was quicker: it is gone, as was asked for.
  if (!deleted && deleted.fault() != platform::Fault::Missing) hataYaz(deleted);
}

void FrmMesajlar::tumunuSil() {
  if (!istasyon_.confirmLoss(metinbul(istasyon_, "msgmesajlarisil"))) return;
  const platform::Status deleted = files::deleteAllMessages(mesajDosyasi(istasyon_));
  Gridyaz();
  if (!deleted) hataYaz(deleted);
}

void FrmMesajlar::ayarla() {
  istasyon_.ekranAc("frmayar", mnuayar.caption());
  gorunumSec(secilenGorunum(istasyon_).view);
}

void FrmMesajlar::adresDegistir() {
  mesajAdresiSor(istasyon_, "Gönderen ismini yazınız", "mesajı gönderen");
  adresDegisti();
}

void FrmMesajlar::adresDegisti() {
  adresGoster();
  Gridyaz();
}

void FrmMesajlar::adresGoster() {
  Lmsgadres.setCaption(mesajAdresi(istasyon_));
}

void FrmMesajlar::hataYaz(const platform::Status& fault) {
  sbDurum.setPanel(1, shell::kisaNedeni(istasyon_, fault));
}

void FrmMesajlar::sayiGoster() {
  const auto unread = std::ranges::count_if(
      listelenen_, [](const Message& each) { return each.record.isRead == 0; });
  sbDurum.setPanel(1, phrase(istasyon_, Phrase::UnreadCount) + std::to_string(unread));
  sbDurum.setPanel(2, phrase(istasyon_, Phrase::MessageCount) + std::to_string(listelenen_.size()));
}

}  // namespace scheduling
