// The list of who was examined on a day, beside the card.
#include "platform/text/date.h"
#include "platform/text/utf8.h"
#include "registry/frm_main.h"
#include "shell/phrases.h"
#include "shell/snapshot.h"
#include "shell/text_lookup.h"

namespace registry {

namespace {

using Names = std::vector<std::string>;

dao::Result<Names> examinedOn(dao::Database& clinical, const text::DateTime& day, int speciality) {
  auto rows = clinical.OpenRecordset(
      "SELECT [Name] FROM [Physical Exam] WHERE [Date] >= ? AND [Date] < ? AND [Speciality] = ? "
      "ORDER BY [Count]",
      {day, text::addDays(day, 1), speciality});
  if (!rows) return std::unexpected(rows.error());
  Names names;
  for (; !rows->Eof(); rows->MoveNext().ignore()) names.push_back(rows->Fields(0).text());
  return names;
}

}  // namespace

void FrmMain::gunuBagla() {
  txttarih.GotFocus.connect([this] { shell::hepsinisec(*this); });
  txttarih.LostFocus.connect([this] { tarihBitti(); });
  Liste.Click.connect([this] { gunlukMuayenebul(); });
}

void FrmMain::gunuGoster(const text::DateTime& day) {
  gun_ = {day.day};
  txttarih.setText(text::shortDate(gun_));
  gunlukListele();
}

void FrmMain::tarihBitti() {
  const auto typed = text::parseDate(text::trim(txttarih.text()), istasyon.clock.today());
  if (typed) return gunuGoster(*typed);
  txttarih.setText(text::shortDate(gun_));
  istasyon.bilgi(metinbul(istasyon, "msghatalitarih"));
}

// The list is made anew only when it has other rows: the place where one reads stays.
void FrmMain::gunlukListele() {
  if (!Pexam.visible()) return;
  auto found = examinedOn(istasyon.stores.clinical.database, gun_, istasyon.BransNo);
  if (!found) return;  // the day's list is no place for faults: every screen tells of this store
  std::erase_if(*found, [this](const std::string& name) { return gizliHasta(name); });
  if (*found == gunluk_) return;
  gunluk_ = std::move(*found);
  Names shown;
  for (const std::string& name : gunluk_) shown.push_back(sisim(name));
  Liste.clear();
  Liste.appendItems(std::move(shown));
  gunlukBaslik();
}

void FrmMain::gunlukBaslik() {
  const std::string count = gunluk_.empty() ? "" : " (" + std::to_string(gunluk_.size()) + ")";
  Pexam.setCaption(metinbul(istasyon, "gunlukmuayeneler") + count);
  Liste.setToolTip(phrase(istasyon, shell::Phrase::NobodyExamined));
}

// While the names are locked, those of hidden patients are nowhere on the screen.
bool FrmMain::gizliHasta(const std::string& name) {
  if (!gizliMi(hiddenMark)) return false;
  dao::Recordset& cards = tablo();
  return cards.Seek("=", name) && !cards.NoMatch() && gizliMi(cards.Fields("Key").text());
}

// At midnight a list that stood on the day goes on with the new one.
void FrmMain::gunuTazele() {
  const text::DateTime today = istasyon.clock.today();
  if (gun_ == bugun_ && today != bugun_) gunuGoster(today);
  bugun_ = today;
  gunlukListele();
}

void FrmMain::gunlukMuayenebul() {
  const auto row = static_cast<std::size_t>(Liste.listIndex());
  if (row >= gunluk_.size()) return;
  const std::string name = gunluk_[row];
  if (!secimdenOnce()) return;
  istasyon.SeciliHasta = name;
  if (!hastaoku()) return;
  Eskialanmain();
  if (gizliYuklu_) return gunlukListele();  // hidden since the list was made
  istasyon.SeciliTarih = gun_;
  muayenetus();
  istasyon.SeciliTarih.reset();
  gunlukListele();
}

}  // namespace registry
