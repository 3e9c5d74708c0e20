#include "shell/named_record_screen.h"

#include <algorithm>

#include "platform/dao/database.h"
#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/text_lookup.h"

namespace shell {

NamedRecordScreen::NamedRecordScreen(Station& station, std::string_view name,
                                     std::string_view oldKey)
    : RecordScreen(station, name), txteski(*this, oldKey) {
  txteski.setVisible(false);
  mnuyeni.Click.connect([this] { Yeni(); });
}

void NamedRecordScreen::Yeni() {
  if (kayitkontrol()) alanlaribosalt();
}

bool NamedRecordScreen::kaydedilebilir() {
  return !text::trimmed(isimAlani().text()).empty();
}

std::vector<std::string> NamedRecordScreen::missing() {
  return {wordsOf(isimAlani())};
}

// The name as it is stored, blanks and all: it is the key.
void NamedRecordScreen::kayitYuklendi() {
  const auto isName = [this](const FieldRow& row) { return &row.control(*this) == &isimAlani(); };
  txteski.setText(tablo().Fields(std::ranges::find_if(alanlar(), isName)->column).text());
}

void NamedRecordScreen::alanlaribosalt() {
  txteski.setText("");
  RecordScreen::alanlaribosalt();
  Eskialan();
  isimAlani().setFocus();
}

void NamedRecordScreen::Kaydet() {
  isimAlani().setText(text::trim(isimAlani().text()));
  if (isimDegistiSor(isimAlani(), txteski.text())) store();
}

void NamedRecordScreen::store() {
  const dao::Status written = kaydiYaz();
  if (!written) return kaydedilemedi(written);
  txteski.setText(isimAlani().text());
  listeDegisti();
  Eskialan();
  etkinlestir(mnusil, "Delete", true);
  kaydedildi();
}

// Under the old name, or as a new row when there is none. A key that another record has is refused
// by the table.
dao::Status NamedRecordScreen::kaydiYaz() {
  auto transaction = veritabani().beginTransaction();
  if (!transaction) return transaction.error();
  const bool stored =
      !txteski.text().empty() && tablo().Seek("=", txteski.text()) && !tablo().NoMatch();
  dao::Status done = stored ? tablo().Edit() : tablo().AddNew();
  if (done) done = Forumalanlaritasi();
  if (done) done = tablo().Update();
  if (done) return transaction->commit();
  tablo().CancelUpdate();
  return done;
}

void NamedRecordScreen::Sil() {
  const std::string old = txteski.text();
  if (old.empty() || !tablo().Seek("=", old) || tablo().NoMatch()) return;
  if (!istasyon.confirmLoss(old + metinbul(istasyon, "msgsilinecekkayit"))) return;
  const bool there = tablo().Seek("=", old) && !tablo().NoMatch();
  const dao::Status deleted = there ? tablo().Delete() : dao::Status();
  if (!deleted) return hataSoyle(istasyon, deleted);
  listeDegisti();
  alanlaribosalt();
}

}  // namespace shell
