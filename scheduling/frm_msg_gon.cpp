#include "scheduling/frm_msg_gon.h"

#include <array>
#include <cstdlib>

#include "platform/files/message_file.h"
#include "platform/files/name_list.h"
#include "platform/text/utf8.h"
#include "scheduling/message_board.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/list_completion.h"
#include "shell/phrases.h"
#include "shell/text_fit.h"
#include "shell/text_lookup.h"

namespace scheduling {

using files::MessageRecord;
using shell::metinbul;
using shell::Phrase;

FrmMsgGon::FrmMsgGon(shell::Station& station) : Form("Frmmsggon"), istasyon_(station) {
  ComKimden.setMaxLength(MessageRecord::nameWidth);
  ComKime.setMaxLength(MessageRecord::nameWidth);
  shell::completeWhileTyping(ComKimden);
  shell::completeWhileTyping(ComKime);
  ComKime.Change.connect([this] { tuskontrol(); });
  ComKime.Click.connect([this] { tuskontrol(); });
  txtkonu.Change.connect([this] { tuskontrol(); });
  txtmesaj.Change.connect([this] { kalanYaz(); });
  ButLKimden.Click.connect([this] {
    const std::string title = metinbul(istasyon_, "Kimden");
    if (mesajAdresiSor(istasyon_, metinbul(istasyon_, "inpgonderenismi"), title)) gonderenYaz();
  });
  Butgönder.Click.connect([this] { gonder(); });
  Butİptal.Click.connect([this] { istasyon_.host.close(*this); });
}

void FrmMsgGon::Load() {
  shell::basliklariyaz(istasyon_, *this);
  isimleriListele();
  gonderenYaz();
  tuskontrol();
  kalanYaz();
  (ComKimden.text().empty() ? ComKimden : ComKime).setFocus();
}

// As the file keeps it: who is answered is found by that.
void FrmMsgGon::gonderenYaz() {
  ComKimden.setText(files::keptText(mesajAdresi(istasyon_), MessageRecord::nameWidth));
}

// A text may be pasted that is longer than a message: nothing is cut before its user knows.
void FrmMsgGon::kalanYaz() {
  const long room = shell::kalanYer(txtmesaj.text(), MessageRecord::textWidth);
  const Phrase state = room < 0 ? Phrase::MessageTooLong : Phrase::MessageRoom;
  Lkalan.setCaption(phrase(istasyon_, state) + std::to_string(std::abs(room)));
}

// Without the list of names they are typed.
void FrmMsgGon::isimleriListele() {
  auto names = files::readNames(isimDosyasi(istasyon_));
  if (!names) return;
  for (std::string& name : *names) name = gosterilen(name, Lines::One);
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
  const std::array texts{shell::FileText{"Kimden", record.sender, MessageRecord::nameWidth},
                         shell::FileText{"Kime", record.addressee, MessageRecord::nameWidth},
                         shell::FileText{"Konu", record.subject, MessageRecord::subjectWidth},
                         shell::FileText{"Mesaj", record.text, MessageRecord::textWidth}};
  if (!shell::boyleKalsinMi(istasyon_, texts, Phrase::SendMessageSo)) return;
  if (platform::Status sent = files::sendMessage(mesajDosyasi(istasyon_), record); !sent)
    return shell::hataSoyle(istasyon_, Phrase::MessageStaysHere, sent);
  gonderildi_ = true;
  for (const platform::Status& kept : {ListeleriKimden(), ListeleriKime()}) {
    if (kept) continue;
    shell::hataSoyle(istasyon_, Phrase::NameNotOffered, kept);
    break;
  }
  istasyon_.host.close(*this);
}

platform::Status FrmMsgGon::ListeleriKimden() {
  return files::addName(isimDosyasi(istasyon_), ComKimden.text());
}

platform::Status FrmMsgGon::ListeleriKime() {
  return files::addName(isimDosyasi(istasyon_), ComKime.text());
}

bool FrmMsgGon::QueryUnload() {
  if (gonderildi_ || text::trimmed(txtmesaj.text()).empty()) return true;
  return istasyon_.confirmLoss(phrase(istasyon_, Phrase::MessageNotSent));
}

}  // namespace scheduling
