#include "shell/dated_record_screen.h"

#include <algorithm>

#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/fees.h"
#include "shell/phrases.h"
#include "shell/record_date.h"
#include "shell/text_lookup.h"
#include "shell/visit_buttons.h"

namespace shell {

DatedRecordScreen::DatedRecordScreen(Station& station, std::string_view name,
                                     const stores::RecordKind& kind, std::string_view dates)
    : RecordScreen(station, name), liste(*this, dates), kind_(kind) {
  for (forms::Control* hidden :
       {static_cast<forms::Control*>(&lblisim), static_cast<forms::Control*>(&Lstkn),
        static_cast<forms::Control*>(&txtnumara)}) {
    hidden->setVisible(false);
  }
  mnuyeni.Click.connect([this] { Yeni(); });
  lblisim.Change.connect([this] { hastaDegisti(); });
  liste.Click.connect([this] { tarihSecildi(); });
  txtnumara.Change.connect([this] { numaraDegisti(); });
  txttarih.GotFocus.connect([this] { tarihOdakta(istasyon, txttarih); });
  txttarih.LostFocus.connect([this] {
    if (!dateUnchecked_ && hatalitarih()) tarihBitti();
  });
  txttarih.Change.connect([this] {
    Lblyaş.setCaption(tarihteYas(istasyon, txttarih));
    tuskontrol();
  });
}

void DatedRecordScreen::ekraniKur(std::initializer_list<const char*> companions) {
  tusGrubu({"New", "Save", "Delete"});
  if (mnuyazdır.visible()) tusGrubu({"Print"});
  if (companions.size() > 0) tusGrubu(companions);
  tbToolBar.addButton("Exit", "Exit");
  alanlariBagla();
}

void DatedRecordScreen::Load() {
  alanGenislikleri(istasyon.stores.clinical.database, kind_.table);
  RecordScreen::Load();
  sbDurum.setPanel(2, text::shortDate(bugun()));
  if (lblisim.caption() == istasyon.SeciliHasta) return hastaDegisti();
  lblisim.setCaption(istasyon.SeciliHasta);
}

void DatedRecordScreen::basliklariYenile() {
  RecordScreen::basliklariYenile();
  liste.setToolTip(phrase(istasyon, Phrase::NoRecordsYet));
}

void DatedRecordScreen::hastaDegisti() {
  lblhasta.setCaption(hastaBandi(istasyon, lblisim.caption()));
  const dao::Status listed = VTarihler();
  alanlaribosalt();
  // A list that cannot be read must not look like a patient without records.
  if (!listed) durumYaz(kisaNedeni(istasyon, listed));
}

// --- The fields

void DatedRecordScreen::alanlaribosalt() {
  gosterilen_.clear();
  txtnumara.setText("");
  RecordScreen::alanlaribosalt();
  sonrakineTasi();
  txttarih.setDate(bugun());
  istasyon.OncekiTarih = txttarih.text();
  ResimVar();
  Eskialan();
  yeniEtkin(false);
  satiriSec();
  durumYaz({});
}

void DatedRecordScreen::Yeni() {
  if (!kayitkontrol()) return;
  dateUnchecked_ = true;
  alanlaribosalt();
  ilkAlan().setFocus();
  dateUnchecked_ = false;
}

// The patient's latest record gives what does not change from visit to visit.
void DatedRecordScreen::sonrakineTasi() {
  const auto carried = [](const FieldRow& row) { return row.carryOver == CarryOver::Yes; };
  if (liste.count() == 0 || std::ranges::none_of(alanlar(), carried)) return;
  if (!kayit().bul(liste.items().back().data)) return;
  for (const FieldRow& row : alanlar()) {
    if (carried(row)) alaniYukle(row);
  }
}

void DatedRecordScreen::kayitYuklendi() {
  gosterilen_ = tablo().Fields("Count").text();
  txtnumara.setText(gosterilen_);
  const auto date = tablo().Fields("Date").Value().date();
  date ? txttarih.setDate(*date) : txttarih.setText("");
  istasyon.OncekiTarih = txttarih.text();
  ResimVar();
  satiriSec();
  const auto fee = std::ranges::find(alanlar(), "Fee", &FieldRow::column);
  if (fee != alanlar().end()) eskiUcretSor(istasyon, kontrol(*fee));
}

std::string DatedRecordScreen::YeniAlanlar() {
  return RecordScreen::YeniAlanlar() + txttarih.text();
}

bool DatedRecordScreen::temizlenebilir() {
  return RecordScreen::temizlenebilir() || txttarih.text() != text::shortDate(bugun());
}

dao::Status DatedRecordScreen::Forumalanlaritasi() {
  const dao::Status begun = sahibiniYaz(istasyon, tablo(), lblisim.caption(), txttarih);
  return begun ? RecordScreen::Forumalanlaritasi() : begun;
}

// --- The record

void DatedRecordScreen::Kaydet() {
  if (!kayitTarihi(istasyon, txttarih, activeControl())) return;
  const dao::Status written = kayitYaz();
  if (!written) return kaydedilemedi(written);
  Eskialan();
  etkinlestir(mnusil, "Delete", true);
  kaydedildi();
}

dao::Status DatedRecordScreen::kayitYaz() {
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  const auto number =
      kayit().yaz(text::wholeNumber(txtnumara.text()), [this] { return Forumalanlaritasi(); });
  if (!number) return number.error();
  const auto records = hastaninKayitlari();
  if (!records) return records.error();
  dao::Status done = vizitYaz(*records);
  listelereEkle();
  if (done) done = transaction->commit();
  if (!done) return done;
  gosterilen_ = std::to_string(*number);
  txtnumara.setText(gosterilen_);
  listele(*records);
  return {};
}

void DatedRecordScreen::Sil() {
  const auto number = text::wholeNumber(txtnumara.text());
  if (!number || !kayit().bul(*number)) return;
  if (!istasyon.confirmLoss(txttarih.text() + metinbul(istasyon, "msgsilinecekkayit"))) return;
  silVeListele(*number, [this] { return hastaninKayitlari(); });
}

// The screen is cleared once nothing of the record is left.
void DatedRecordScreen::silVeListele(std::int64_t number, const Lister& remaining) {
  Records left;
  const dao::Status deleted = kaydiSil(number, remaining, left);
  if (!deleted) return hataSoyle(istasyon, deleted);
  listele(std::move(left));
  alanlaribosalt();
}

dao::Status DatedRecordScreen::kaydiSil(std::int64_t number, const Lister& remaining,
                                        Records& left) {
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  const dao::Status deleted = kayit().sil(number);
  if (!deleted) return deleted;
  auto records = remaining();
  if (!records) return records.error();
  left = std::move(*records);
  const dao::Status listed = vizitYaz(left);
  return listed ? transaction->commit() : listed;
}

void DatedRecordScreen::Sil1() {
  const auto number = text::wholeNumber(txtnumara.text());
  if (!number || !kayit().bul(*number)) return;
  std::vector<std::int64_t> numbers;
  for (const forms::ListItem& item : Lstkn.items()) {
    if (item.data != *number) numbers.push_back(item.data);
  }
  silVeListele(*number, [&]() -> dao::Result<Records> {
    return stores::listedRecords(istasyon.stores.clinical.database, kind_, numbers);
  });
}

NumberedRecord DatedRecordScreen::kayit() {
  return {istasyon, kind_, lblisim.caption()};
}

// --- The list of dates and the ledger

std::string DatedRecordScreen::anahtar() const {
  return stores::ledgerKey(istasyon.BransAdi, kind_, lblisim.caption());
}

dao::Status DatedRecordScreen::VTarihler() {
  stores::ClinicalStore& clinical = istasyon.stores.clinical;
  const auto row = stores::readLedgerRow(clinical.Visit, anahtar());
  const auto records = row ? stores::listedRecords(clinical.database, kind_, row->numbers)
                           : dao::Result<Records>(std::unexpect, row.error());
  listele(records.value_or(Records()));
  return records ? dao::Status() : records.error();
}

void DatedRecordScreen::tarihler() {
  const auto records = hastaninKayitlari();
  if (records) return listele(*records);
  durumYaz(kisaNedeni(istasyon, records.error()));
}

dao::Result<DatedRecordScreen::Records> DatedRecordScreen::hastaninKayitlari() {
  return stores::patientRecords(istasyon.stores.clinical.database, kind_, lblisim.caption(),
                                istasyon.BransNo);
}

void DatedRecordScreen::Visitkaydet() {
  vizitYaz(kayitlar_).ignore();
  dugmeleriYenile();
}

dao::Status DatedRecordScreen::vizitYaz(const Records& records) {
  stores::LedgerRow row;
  for (const stores::DatedRecord& record : records) row.numbers.push_back(record.number);
  // A record without a date stands on the first day of all.
  const bool dated = !records.empty() && records.back().date != text::fromDayNumber(0);
  if (dated) row.lastVisit = records.back().date;
  const dao::Status written =
      stores::writeLedgerRow(istasyon.stores.clinical.Visit, anahtar(), row);
  // A key that is too long has no row; the record is stored all the same.
  return written.fault() == dao::Fault::TooLong ? dao::Status() : written;
}

// One read for all rows. Notes that cannot be read are not worth a message: the dates are there.
std::map<std::int64_t, std::string> DatedRecordScreen::listeNotlari() {
  std::map<std::int64_t, std::string> notes;
  if (listeNotu().empty() || kayitlar_.empty()) return notes;
  std::vector<std::int64_t> numbers;
  for (const stores::DatedRecord& record : kayitlar_) numbers.push_back(record.number);
  auto rows = stores::openListed(istasyon.stores.clinical.database, kind_,
                                 "[Count], [" + std::string(listeNotu()) + "]", numbers);
  if (!rows) return notes;
  for (; !rows->Eof(); rows->MoveNext().ignore()) {
    const std::string text = text::trim(rows->Fields(1).text());
    notes.emplace(rows->Fields(0).Value().integer(), text.substr(0, text.find_first_of("\r\n")));
  }
  return notes;
}

void DatedRecordScreen::listele(Records records) {
  kayitlar_ = std::move(records);
  std::map<std::int64_t, std::string> notes = listeNotlari();
  std::vector<forms::ListItem> dates;
  std::vector<forms::ListItem> numbers;
  for (const stores::DatedRecord& record : kayitlar_) {
    dates.push_back({.text = text::shortDate(record.date),
                     .data = record.number,
                     .note = notes[record.number]});
    numbers.push_back({.text = std::to_string(record.number), .data = record.number});
  }
  liste.setItems(std::move(dates));
  Lstkn.setItems(std::move(numbers));
  tbToolBar.setButtonEnabled("dokum", liste.count() > 0);
  satiriSec();
  listeDegisti();
  dugmeleriYenile();
}

void DatedRecordScreen::dugmeleriYenile() {
  vizitDugmeleri(istasyon, tbToolBar, lblisim.caption());
  if (istasyon.kart != nullptr) istasyon.kart->ButtonsForPatient();
}

// The row of the record on the screen becomes the chosen one.
void DatedRecordScreen::satiriSec() {
  const auto row = std::ranges::find(Lstkn.items(), gosterilen_, &forms::ListItem::text);
  const bool listed = !gosterilen_.empty() && row != Lstkn.items().end();
  liste.setListIndex(listed ? static_cast<int>(row - Lstkn.items().begin()) : -1);
}

void DatedRecordScreen::tarihSecildi() {
  if (liste.listIndex() < 0) return;
  const forms::ListItem chosen = liste.items()[static_cast<std::size_t>(liste.listIndex())];
  const std::string number = std::to_string(chosen.data);
  if (number == gosterilen_) return;
  secimdenOnce() ? txtnumara.setText(number) : satiriSec();
}

// A number that somebody put in shows its record. One without a record, which another station may
// have deleted, leaves the screen as it is.
void DatedRecordScreen::numaraDegisti() {
  if (txtnumara.text() == gosterilen_ || txtnumara.text().empty()) return;
  const auto number = text::wholeNumber(txtnumara.text());
  if (number && kayit().bul(*number) && alanlaritasi(*number)) return;
  txtnumara.setText(gosterilen_);
  satiriSec();
  durumYaz(phrase(istasyon, Phrase::RecordGone));
}

// --- The date

bool DatedRecordScreen::hatalitarih() {
  return shell::hatalitarih(istasyon, txttarih);
}

}  // namespace shell
