#include "scheduling/frm_msg_gon.h"

#include "platform/files/message_file.h"
#include "platform/files/name_list.h"
#include "platform/text/utf8.h"
#include "scheduling/message_board.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/list_completion.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"

namespace scheduling {

using files::MessageRecord;
using shell::metinbul;
using shell::Phrase;

namespace {

constexpr std::string_view namesFile = "Data/List.dat";

}  // namespace

FrmMsgGon::FrmMsgGon(shell::Station& station) : Form("Frmmsggon"), istasyon_(station) {
  ComKimden.setMaxLength(MessageRecord::nameWidth);
  ComKime.setMaxLength(MessageRecord::nameWidth);
  txtkonu.setMaxLength(MessageRecord::subjectWidth);
  txtmesaj.setMaxLength(MessageRecord::textWidth);
  shell::completeWhileTyping(ComKimden);
  shell::completeWhileTyping(ComKime);
  ComKime.Change.connect([this] { tuskontrol(); });
  ComKime.Click.connect([this] { tuskontrol(); });
  txtkonu.Change.connect([this] { tuskontrol(); });
  ButLKimden.Click.connect([this] {
    const std::string title = metinbul(istasyon_, "Kimden");
    if (mesajAdresiSor(istasyon_, metinbul(istasyon_, "inpgonderenismi"), title))
      ComKimden.setText(mesajAdresi(istasyon_));
  });
  Butgönder.Click.connect([this] { gonder(); });
  Butİptal.Click.connect([this] { istasyon_.host.close(*this); });
}

void FrmMsgGon::Load() {
  shell::basliklariyaz(istasyon_, *this);
  isimleriListele();
  ComKimden.setText(mesajAdresi(istasyon_));
  tuskontrol();
  (ComKimden.text().empty() ? ComKimden : ComKime).setFocus();
}

// Without the list of names they are typed.
void FrmMsgGon::isimleriListele() {
  const auto names = files::readNames(istasyon_.dosya(namesFile));
  if (!names) return;
  ComKimden.setItems(*names);
  ComKime.setItems(*names);
}

void FrmMsgGon::tuskontrol() {
  Butgönder.setEnabled(!text::trimmed(ComKime.text()).empty() &&
                       !text::trimmed(txtkonu.text()).empty());
}

void FrmMsgGon::gonder() {
  MessageRecord record;
  record.sender = text::trim(ComKimden.text());
  record.addressee = text::trim(ComKime.text());
  record.subject = text::trim(txtkonu.text());
  record.text = txtmesaj.text();
  record.sent = text::shortDateTime(istasyon_.clock.now());
  record.isNew = 1;
  if (platform::Status sent = files::sendMessage(mesajDosyasi(istasyon_), record); !sent)
    return shell::hataSoyle(istasyon_, Phrase::StoreFailed, sent);
  // The message is out; a name that is not offered next time is typed again.
  ListeleriKimden().ignore();
  ListeleriKime().ignore();
  gonderildi_ = true;
  istasyon_.host.close(*this);
}

platform::Status FrmMsgGon::ListeleriKimden() {
  return files::addName(istasyon_.dosya(namesFile), ComKimden.text());
}

platform::Status FrmMsgGon::ListeleriKime() {
  return files::addName(istasyon_.dosya(namesFile), ComKime.text());
}

bool FrmMsgGon::QueryUnload() {
  if (gonderildi_ || text::trimmed(txtmesaj.text()).empty()) return true;
  return istasyon_.confirmLoss(phrase(istasyon_, Phrase::MessageNotSent));
}

}  // namespace scheduling
