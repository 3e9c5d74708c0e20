#include "shell/dated_record_screen.h"

#include <algorithm>

#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/age.h"
#include "shell/fees.h"
#include "shell/phrases.h"
#include "shell/snapshot.h"
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
  tusGrubu({"New", "Save", "Delete"});
  if (istasyon.screens.has("frmprewive")) tusGrubu({"Print"});
  mnuyeni.Click.connect([this] { Yeni(); });
  lblisim.Change.connect([this] { hastaDegisti(); });
  liste.Click.connect([this] { tarihSecildi(); });
  txtnumara.Change.connect([this] { numaraDegisti(); });
  txttarih.GotFocus.connect([this] { tarihOdakta(); });
  txttarih.LostFocus.connect([this] {
    if (hatalitarih()) tarihBitti();
  });
  txttarih.Change.connect([this] {
    yasGoster();
    tuskontrol();
  });
}

void DatedRecordScreen::ekraniKur(std::initializer_list<const char*> companions) {
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

void DatedRecordScreen::hastaDegisti() {
  bandiYaz();
  VTarihler();
  alanlaribosalt();
}

// --- The fields

void DatedRecordScreen::alanlaribosalt() {
  gosterilen_.clear();
  txtnumara.setText("");
  RecordScreen::alanlaribosalt();
  sonrakineTasi();
  txttarih.setDate(bugun());
  ResimVar();
  Eskialan();
  etkinlestir(mnuyeni, "New", false);
  satiriSec();
  durumYaz({});
}

void DatedRecordScreen::Yeni() {
  if (!kayitkontrol()) return;
  alanlaribosalt();
  ilkAlan().setFocus();
}

// The patient's latest record gives what does not change from visit to visit.
void DatedRecordScreen::sonrakineTasi() {
  const auto carried = [](const FieldRow& row) { return row.carryOver == CarryOver::Yes; };
  if (liste.count() == 0 || std::ranges::none_of(alanlar(), carried)) return;
  if (!tablo().Seek("=", liste.items().back().data) || tablo().NoMatch()) return;
  for (const FieldRow& row : alanlar()) {
    if (carried(row)) alaniYukle(row);
  }
}

void DatedRecordScreen::kayitYuklendi() {
  gosterilen_ = tablo().Fields("Count").text();
  txtnumara.setText(gosterilen_);
  const auto date = tablo().Fields("Date").Value().date();
  date ? txttarih.setDate(*date) : txttarih.setText("");
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
  dao::Recordset& table = tablo();
  const auto date = txttarih.date(bugun());
  const dao::Status results[] = {table.Fields("Name").Set(text::trim(lblisim.caption())),
                                 table.Fields("Date").Set(date ? dao::Value(*date) : dao::Value()),
                                 table.Fields("Speciality").Set(istasyon.BransNo),
                                 RecordScreen::Forumalanlaritasi()};
  for (const dao::Status& result : results) {
    if (!result) return result;
  }
  return {};
}

// --- The record

void DatedRecordScreen::Kaydet() {
  // Saved by a key while the date is typed, or with a date that is none.
  const bool unchecked = activeControl() == &txttarih || !txttarih.date(bugun());
  if (unchecked && !hatalitarih()) return;
  const dao::Status written = kayitYaz();
  if (!written) return kaydedilemedi(written);
  Eskialan();
  etkinlestir(mnusil, "Delete", true);
  kaydedildi();
}

dao::Status DatedRecordScreen::kayitYaz() {
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  listelereEkle();
  const auto number = kaydiYaz();
  if (!number) return number.error();
  const auto records = hastaninKayitlari();
  if (!records) return records.error();
  vizitYaz(*records).ignore();
  const dao::Status committed = transaction->commit();
  if (!committed) return committed;
  gosterilen_ = std::to_string(*number);
  txtnumara.setText(gosterilen_);
  listele(*records);
  return {};
}

// The number of the row that was written.
dao::Result<std::int64_t> DatedRecordScreen::kaydiYaz() {
  dao::Recordset& table = tablo();
  const auto old = text::wholeNumber(txtnumara.text());
  const bool stored = old && table.Seek("=", *old) && !table.NoMatch();
  auto number = stored ? dao::Result<std::int64_t>(*old)
                       : istasyon.stores.clinical.database.nextNumber(kind_.table, "Count");
  if (!number) return number;
  dao::Status done = stored ? table.Edit() : table.AddNew();
  if (done) done = table.Fields("Count").Set(*number);
  if (done) done = Forumalanlaritasi();
  if (done) done = table.Update();
  if (done) return number;
  table.CancelUpdate();
  return std::unexpected(done);
}

void DatedRecordScreen::Sil() {
  const auto number = text::wholeNumber(txtnumara.text());
  if (!number || !tablo().Seek("=", *number) || tablo().NoMatch()) return;
  if (!istasyon.evetMi(txttarih.text() + metinbul(istasyon, "msgsilinecekkayit"))) return;
  Records left;
  const dao::Status deleted = silVeListele(*number, left);
  if (!deleted) return istasyon.host.runtimeError(deleted);
  listele(left);
  alanlaribosalt();
}

dao::Status DatedRecordScreen::silVeListele(const dao::Value& number, Records& left) {
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  // Deleted at another station meanwhile: the list is made anew all the same.
  const bool there = tablo().Seek("=", number) && !tablo().NoMatch();
  const dao::Status deleted = there ? tablo().Delete() : dao::Status();
  if (!deleted) return deleted;
  auto records = hastaninKayitlari();
  if (!records) return records.error();
  left = std::move(*records);
  vizitYaz(left).ignore();
  return transaction->commit();
}

void DatedRecordScreen::Sil1() {
  const std::string number = txtnumara.text();
  const auto sought = text::wholeNumber(number);
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!sought || !transaction) return;
  if (!tablo().Seek("=", *sought) || tablo().NoMatch() || !tablo().Delete()) return;
  std::vector<std::int64_t> numbers;
  for (const forms::ListItem& item : Lstkn.items()) {
    if (item.text != number) numbers.push_back(item.data);
  }
  const auto left = stores::listedRecords(istasyon.stores.clinical.database, kind_, numbers);
  if (!left) return istasyon.host.runtimeError(left.error());
  vizitYaz(*left).ignore();
  const dao::Status committed = transaction->commit();
  if (!committed) return istasyon.host.runtimeError(committed);
  listele(*left);
  alanlaribosalt();
}

// --- The list of dates and the ledger

std::string DatedRecordScreen::anahtar() const {
  return stores::ledgerKey(istasyon.BransAdi, kind_, lblisim.caption());
}

void DatedRecordScreen::VTarihler() {
  stores::ClinicalStore& clinical = istasyon.stores.clinical;
  const auto row = stores::readLedgerRow(clinical.Visit, anahtar());
  const auto records = row ? stores::listedRecords(clinical.database, kind_, row->numbers)
                           : dao::Result<Records>(std::unexpect, row.error());
  listele(records.value_or(Records()));
  if (!records) durumYaz(records.error().text());
}

void DatedRecordScreen::tarihler() {
  const auto records = hastaninKayitlari();
  if (records) return listele(*records);
  durumYaz(records.error().text());
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
  if (!records.empty()) row.lastVisit = records.back().date;
  return stores::writeLedgerRow(istasyon.stores.clinical.Visit, anahtar(), row);
}

void DatedRecordScreen::listele(Records records) {
  kayitlar_ = std::move(records);
  std::vector<forms::ListItem> dates;
  std::vector<forms::ListItem> numbers;
  for (const stores::DatedRecord& record : kayitlar_) {
    dates.push_back({text::shortDate(record.date), record.number});
    numbers.push_back({std::to_string(record.number), record.number});
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
  if (number && alanlaritasi(*number)) return;
  txtnumara.setText(gosterilen_);
  satiriSec();
  durumYaz(phrase(istasyon, Phrase::RecordGone));
}

// --- The date

void DatedRecordScreen::tarihOdakta() {
  istasyon.OncekiTarih = txttarih.text();
  hepsinisec(*this);
}

bool DatedRecordScreen::hatalitarih() {
  const auto date = txttarih.date(bugun());
  if (date && tarihUygun(*date)) {
    txttarih.setDate(*date);
    return true;
  }
  istasyon.bilgi(metinbul(istasyon, "msghatalitarih"));
  txttarih.setText(istasyon.OncekiTarih);
  txttarih.setFocus();
  txttarih.selectAll();
  return false;
}

bool DatedRecordScreen::tarihUygun(const text::DateTime& date) const {
  constexpr std::size_t shortestFullDate = 5;
  if (date > bugun()) return false;
  const std::string birth = istasyon.kart == nullptr ? "" : text::trim(istasyon.kart->dogum());
  if (text::length(birth) < shortestFullDate) return date.year() >= text::Val(birth);
  const auto born = text::parseDate(birth, bugun());
  return !born || date >= *born;
}

void DatedRecordScreen::yasGoster() {
  const auto date = txttarih.date(bugun());
  const auto age = date && istasyon.kart != nullptr
                       ? yasmetni(istasyon, text::trim(istasyon.kart->dogum()), *date)
                       : std::nullopt;
  Lblyaş.setCaption(age ? metinbul(istasyon, "yasi") + " : " + *age : std::string());
}

void DatedRecordScreen::bandiYaz() {
  std::string banner = sisim(lblisim.caption());
  if (istasyon.kart != nullptr) {
    const auto age = yasmetni(istasyon, text::trim(istasyon.kart->dogum()), bugun());
    const int sex = istasyon.kart->cinsiyet();
    const std::string parts[] = {age.value_or(""),
                                 sex == 0   ? metinbul(istasyon, "kadin")
                                 : sex == 1 ? metinbul(istasyon, "Erkek")
                                            : "",
                                 istasyon.kart->kanGrubu()};
    for (const std::string& part : parts) {
      if (!part.empty()) banner += "   ·   " + part;
    }
  }
  lblhasta.setCaption(banner);
}

}  // namespace shell
