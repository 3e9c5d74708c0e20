// The value that is written down: fields, save and delete.
#include "exam/frm_test.h"

#include <algorithm>
#include <array>
#include <utility>

#include "exam/catalogue_name.h"
#include "exam/result_mark.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/file_words.h"
#include "shell/list_completion.h"
#include "shell/record_date.h"
#include "shell/text_lookup.h"
#include "stores/visit_ledger.h"

namespace exam {

namespace {

const stores::RecordKind& laboratory = stores::kind::laboratory;

}  // namespace

FrmTest::FrmTest(shell::Station& station) : RecordScreen(station, "frmtest") {
  for (forms::Control* hidden :
       {static_cast<forms::Control*>(&lblisim), static_cast<forms::Control*>(&Lstkn),
        static_cast<forms::Control*>(&txtcount)})
    hidden->setVisible(false);
  msgrid1.setColumnVisible(result_column::number, false);
  for (const int column : {result_column::result, result_column::min, result_column::max})
    msgrid1.setColumnAlign(column, forms::ColumnAlign::Right);
  tusGrubu({"New", "Save", "Delete"});
  if (istasyon.screens.has("frmprewive")) tusGrubu({"Print"});
  tusGrubu({"filtre", "grafik", "testler"});
  tbToolBar.addButton("Exit", "Exit");
  alanlariBagla();
  olaylariBagla();
}

void FrmTest::olaylariBagla() {
  mnuyeni.Click.connect([this] { Yeni(); });
  mnutestfiltrele.Click.connect([this] { filtreAc(); });
  mnutümü.Click.connect([this] { VAnalizleriyaz(); });
  mnugrafik.Click.connect([this] { grafikAc(); });
  mnutestdüzenle.Click.connect([this] { testDuzenleAc(); });
  lblisim.Change.connect([this] { hastaDegisti(); });
  txttarih.GotFocus.connect([this] { shell::tarihOdakta(istasyon, txttarih); });
  txttarih.LostFocus.connect([this] { shell::hatalitarih(istasyon, txttarih); });
  txttarih.Change.connect([this] { tuskontrol(); });
  comtest.KeyUp.connect([this](forms::Key key) { shell::completeFromList(comtest, key); });
  comtest.Click.connect([this] { testSecildi(); });
  comtest.LostFocus.connect([this] { testBitti(); });
  msgrid1.RowColChange.connect([this] { satirSecildi(); });
  msgrid1.DblClick.connect([this] { grafikAc(); });
}

std::span<const shell::FieldRow> FrmTest::alanlar() const {
  using shell::controlOf;
  static constexpr std::array<shell::FieldRow, 5> rows{{
      {controlOf<&FrmTest::comtest>, "Test", "Test"},
      {controlOf<&FrmTest::txtsonuç>, "result", "sonuc"},
      {controlOf<&FrmTest::txtbirim>, "Unit", "Birim"},
      {controlOf<&FrmTest::txtmin>, "Min", "Min"},
      {controlOf<&FrmTest::txtmax>, "Max", "Max"},
  }};
  return rows;
}

void FrmTest::Load() {
  alanGenislikleri(istasyon.stores.clinical.database, laboratory.table);
  RecordScreen::Load();
  baski.Setkayitlarioku();
  Testlistele();
  sbDurum.setPanel(2, text::shortDate(istasyon.clock.today()));
  if (lblisim.caption() == istasyon.SeciliHasta) return hastaDegisti();
  lblisim.setCaption(istasyon.SeciliHasta);
}

bool FrmTest::QueryUnload() {
  const bool chosenOnly = txtcount.text().empty() && text::trimmed(txtsonuç.text()).empty();
  if (chosenOnly && !mayGoUnsaved() && !kayitkontrol()) return false;
  if (chosenOnly) alanlaribosalt();
  return RecordScreen::QueryUnload();
}

void FrmTest::Unload() {
  RecordScreen::Unload();
  baski.setkayityaz().ignore();
}

void FrmTest::hastaDegisti() {
  lblhasta.setCaption(shell::hastaBandi(istasyon, lblisim.caption()));
  txttarih.setDate(istasyon.clock.today());
  alanlaribosalt();
  VAnalizleriyaz();
}

// --- The fields

void FrmTest::alanlaribosalt() {
  txtcount.setText("");
  sonTest_.clear();
  kayitliTest_.clear();
  aralikTestin_ = false;
  RecordScreen::alanlaribosalt();
  Eskialan();
  etkinlestir(mnuyeni, "New", temizlenebilir());
  msgrid1.dropChoice();
  durumYaz({});
}

void FrmTest::Yeni() {
  if (!kayitkontrol()) return;
  bugundenBasla();
  comtest.setFocus();
}

// The date of the value that was on the screen goes with it.
void FrmTest::bugundenBasla() {
  txttarih.setDate(istasyon.clock.today());
  alanlaribosalt();
}

bool FrmTest::alanlaritasi(const dao::Value& number) {
  if (!kayit().bul(number.integer())) return false;
  txtcount.setText(tablo().Fields("Count").text());
  const auto date = tablo().Fields("Date").Value().date();
  date ? txttarih.setDate(*date) : txttarih.setText("");
  const bool shown = RecordScreen::alanlaritasi(number);
  sonTest_ = text::trim(comtest.text());
  kayitliTest_ = sonTest_;
  aralikTestin_ = true;
  return shown;
}

std::string FrmTest::YeniAlanlar() {
  return RecordScreen::YeniAlanlar() + txttarih.text();
}

bool FrmTest::kaydedilebilir() {
  return !lblisim.caption().empty() && !text::trimmed(comtest.text()).empty();
}

bool FrmTest::temizlenebilir() {
  return !RecordScreen::YeniAlanlar().empty() ||
         txttarih.text() != text::shortDate(istasyon.clock.today());
}

std::vector<std::string> FrmTest::missing() {
  return {wordsOf(comtest)};
}

void FrmTest::tuskontrol() {
  RecordScreen::tuskontrol();
  gridkontrol();
}

dao::Status FrmTest::Forumalanlaritasi() {
  const dao::Status begun = shell::sahibiniYaz(istasyon, tablo(), lblisim.caption(), txttarih);
  return begun ? RecordScreen::Forumalanlaritasi() : begun;
}

// --- The record

void FrmTest::Kaydet() {
  if (!shell::kayitTarihi(istasyon, txttarih, activeControl())) return;
  testBitti();
  if (!testOnaylandi()) return comtest.setFocus();
  for (forms::TextBox* const number : {&txtsonuç, &txtmin, &txtmax})
    number->setText(noktali(number->text()));
  const dao::Status written = kayitYaz();
  if (!written) return kaydedilemedi(written);
  alanlaribosalt();
  VAnalizleriyaz();
  kaydedildi();
  // Somebody who goes through the grid stays there.
  if (activeControl() != &msgrid1) comtest.setFocus();
}

dao::Status FrmTest::kayitYaz() {
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  const auto number =
      kayit().yaz(text::wholeNumber(txtcount.text()), [this] { return Forumalanlaritasi(); });
  if (!number) return number.error();
  const auto listed = [&](Numbers& numbers) {
    if (std::ranges::find(numbers, *number) == numbers.end()) numbers.push_back(*number);
  };
  const dao::Status written = Visitkaydet(listed);
  return written ? transaction->commit() : written;
}

void FrmTest::Sil() {
  const auto number = text::wholeNumber(txtcount.text());
  if (!number || !kayit().bul(*number)) return;
  if (!istasyon.confirmLoss(txttarih.text() + metinbul(istasyon, "msgsilinecekkayit"))) return;
  const dao::Status deleted = silVeListele(*number);
  if (!deleted) return shell::hataSoyle(istasyon, deleted);
  bugundenBasla();
  VAnalizleriyaz();
}

dao::Status FrmTest::silVeListele(std::int64_t number) {
  auto transaction = istasyon.stores.clinical.database.beginTransaction();
  if (!transaction) return transaction.error();
  const dao::Status deleted = kayit().sil(number);
  if (!deleted) return deleted;
  const dao::Status listed =
      Visitkaydet([number](Numbers& numbers) { std::erase(numbers, number); });
  return listed ? transaction->commit() : listed;
}

shell::NumberedRecord FrmTest::kayit() {
  return {istasyon, laboratory, lblisim.caption()};
}

template <class Change>
dao::Status FrmTest::Visitkaydet(Change change) {
  dao::Recordset& visit = istasyon.stores.clinical.Visit;
  const std::string anahtar = stores::ledgerKey(istasyon.BransAdi, laboratory, lblisim.caption());
  auto row = stores::readLedgerRow(visit, anahtar);
  if (!row) return row.error();
  change(row->numbers);
  row->lastVisit = txttarih.date(istasyon.clock.today());
  const dao::Status written = stores::writeLedgerRow(visit, anahtar, *row);
  return written.fault() == dao::Fault::TooLong ? dao::Status() : written;
}

// --- The test

// A test of the catalogue brings its unit and range. Those of another test do not stay with one
// that has none of its own; what was typed before any test was named is the user's own.
void FrmTest::testSecildi() {
  const std::string typed = text::trim(comtest.text());
  const auto stored = katalogdaki(typed);
  const std::string test = stored ? text::trim(*stored) : typed;
  const std::string before = std::exchange(sonTest_, test);
  if (stored) comtest.setText(test);
  if (test == before) return;
  const bool own = !aralikTestin_ && (before.empty() || !stored) &&
                   !(txtbirim.text() + txtmin.text() + txtmax.text()).empty();
  if (own) return;
  dao::Recordset& tests = istasyon.stores.clinical.Tests;
  const auto bring = [&](forms::TextBox& field, const char* column) {
    field.setText(stored ? text::trim(tests.Fields(column).text()) : std::string());
  };
  bring(txtbirim, "Unit");
  bring(txtmin, "Min");
  bring(txtmax, "Max");
  aralikTestin_ = stored.has_value();
}

void FrmTest::testBitti() {
  const std::string typed = text::trim(comtest.text());
  if (!typed.empty() && typed != sonTest_) testSecildi();
}

// The row of the catalogue becomes the current one.
std::optional<std::string> FrmTest::katalogdaki(const std::string& name) {
  dao::Recordset& tests = istasyon.stores.clinical.Tests;
  if (auto stored = storedName(tests, "Test", name)) return stored;
  const auto alike = [&](const std::string& item) { return foldedName(istasyon, item); };
  const auto at = std::ranges::find(comtest.items(), alike(name), alike);
  return name.empty() || at == comtest.items().end() ? std::nullopt
                                                     : storedName(tests, "Test", *at);
}

// A test that nobody knows yet is no slip of the keyboard when the user says so.
bool FrmTest::testOnaylandi() {
  const std::string test = text::trim(comtest.text());
  return test == kayitliTest_ || katalogdaki(test) ||
         istasyon.evetMi(shell::doldurulmus(istasyon, shell::Phrase::ResultUnknown, {test}));
}

void FrmTest::Testlistele() {
  std::vector<std::string> names;
  dao::Recordset& tests = istasyon.stores.clinical.Tests;
  for (tests.MoveFirst().ignore(); !tests.Eof(); tests.MoveNext().ignore())
    names.push_back(tests.Fields("Test").text());
  comtest.setItems(std::move(names));
}

}  // namespace exam
