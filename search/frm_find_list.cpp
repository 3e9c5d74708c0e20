// The finder's lists: searching, listing, going to a patient, picking addresses.
#include <algorithm>
#include <unordered_set>
#include <utility>

#include "search/frm_find.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"
#include "shell/record_screen.h"

namespace search {

namespace {

constexpr std::array addressLines{"Address1", "Address2", "Address3", "Address4"};
// Shorter work shows no progress: nothing flickers.
constexpr int slicesWithoutProgress = 60;

std::string typedIn(const FilterRow& row, forms::TextControl& control) {
  if (row.test != Test::ListIndex) return control.text();
  return std::to_string(static_cast<forms::ComboBox&>(control).listIndex());
}

}  // namespace

void FrmFind::BulListYaz() {
  listele(Filters::Applied, dao::Fold::General);
}
void FrmFind::BulListYazTUR() {
  listele(Filters::Applied, dao::Fold::Turkish);
}
void FrmFind::TümListe() {
  listele(Filters::Ignored, dao::Fold::General);
}

CardScan FrmFind::tarama(Filters filters, dao::Fold fold, std::span<const std::string_view> wanted,
                         Found found) {
  CardScan scan(istasyon.stores.personal.database, wanted,
                {[this](std::string_view key) { return istasyon.gizliMi(key); }, std::move(found)});
  for (const FilterRow& row : filterRows()) {
    forms::TextControl& control = row.control(*this);
    if (filters == Filters::Applied && !control.text().empty())
      scan.require(Condition(row.test, typedIn(row, control), fold), row.columns);
  }
  return scan;
}

void FrmFind::listele(Filters filters, dao::Fold fold) {
  listeyiAc();
  const auto scan = std::make_shared<CardScan>(tarama(
      filters, fold, CardLine::columns(),
      [this, line = CardLine(istasyon)](dao::Recordset& card) { line.write(card, yeniSatir()); }));
  dilimle([scan] { return scan->step(); },
          [this, scan] {
            satirlariEkle();
            ilerle(scan->walked(), toplam_);
          },
          [this] { bitti(); });
}

void FrmFind::SonuçlarıListele() {
  listeyiAc();
  const auto next = std::make_shared<std::size_t>(0);
  dilimle(
      [this, next, line = CardLine(istasyon)]() -> dao::Result<bool> {
        if (*next == ListFiltre.count()) return true;
        const std::string& name = ListFiltre.items()[(*next)++].text;
        const auto found = kartiBul(name);
        if (!found) return std::unexpected(found.error());
        if (*found && !istasyon.gizliMi(kartlar_.Fields("Key").view()))
          line.write(kartlar_, yeniSatir());
        return false;
      },
      [this, next] {
        satirlariEkle();
        ilerle(*next, ListFiltre.count());
      },
      [this] { bitti(); });
}

void FrmFind::listeyiAc() {
  durdur();
  BulList.clearRows();
  BulList.setToolTip("");
  LDurum.setCaption("");
  sayiyiYaz();
  sayfaSec(Page::Result);
}

void FrmFind::dilimle(std::function<dao::Result<bool>()> step, std::function<void()> sliceEnd,
                      std::function<void()> end) {
  dilim_ = 0;
  is_.start([this, step = std::move(step), sliceEnd = std::move(sliceEnd), end = std::move(end)] {
    const shell::Deadline deadline(dilimSuresi);
    dao::Result<bool> done = false;
    do done = step();
    while (done && !*done && !deadline.passed());
    sliceEnd();
    if (done && !*done) return false;
    done ? end() : bitti();
    if (!done) soyle(shell::kisaNedeni(istasyon, done.error()));
    return true;
  });
}

// What was found so far stays.
void FrmFind::durdur() {
  if (!is_.running()) return;
  is_.stop();
  PBar.setVisible(false);
  ButDur.setVisible(false);
  sayiyiYaz();
  LDurum.setCaption(phrase(istasyon, shell::Phrase::SearchStopped));
}

void FrmFind::soyle(const std::string& why) {
  LDurum.setCaption(why);
  istasyon.host.beep();
}

forms::ListView::Row& FrmFind::yeniSatir() {
  if (yeni_ == satirlar_.size()) satirlar_.emplace_back();
  return satirlar_[yeni_++];
}

void FrmFind::satirlariEkle() {
  BulList.appendRows(std::span(satirlar_).first(std::exchange(yeni_, 0)));
  sayiyiYaz();
  if (BulList.selectedRow() < 0) BulList.setSelectedRow(0);
}

void FrmFind::ilerle(std::size_t done, std::size_t total) {
  if (++dilim_ < slicesWithoutProgress) return;
  PBar.setRange(static_cast<long>(std::max(done, total)));
  PBar.setValue(static_cast<long>(done));
  PBar.setVisible(true);
  ButDur.setVisible(true);
}

void FrmFind::sayiyiYaz() {
  const bool any = BulList.rowCount() > 0;
  LSayı.setCaption(std::to_string(BulList.rowCount()));
  // A list that still grows is neither printed nor taken.
  for (forms::Control* whole :
       {static_cast<forms::Control*>(&mnuonizleme), static_cast<forms::Control*>(&mnuyazdır),
        static_cast<forms::Control*>(&buttamam)})
    whole->setEnabled(any && !is_.running());
  ButGit.setEnabled(BulList.selectedRow() >= 0);
}

void FrmFind::bitti() {
  is_.stop();
  PBar.setVisible(false);
  ButDur.setVisible(false);
  sayiyiYaz();
  BulList.setToolTip(BulList.rowCount() > 0 ? std::string()
                                            : phrase(istasyon, shell::Phrase::NobodyFound));
}

void FrmFind::git() {
  const std::string name(BulList.selectedKey());
  if (name.empty()) return;
  const auto found = kartiBul(name);
  if (!found) return soyle(shell::kisaNedeni(istasyon, found.error()));
  if (!*found)
    return soyle(shell::RecordScreen::sisim(name) + ": " +
                 phrase(istasyon, shell::Phrase::RecordGone));
  istasyon.host.close(*this);
  if (istasyon.kart != nullptr) istasyon.kart->hastaSec(name);
}

// The caller gets all names or, when this is stopped, cannot read or the window is closed, none.
void FrmFind::tamam() {
  struct Picking {
    std::size_t row = 0;
    std::vector<std::string> names;
    std::unordered_set<std::string> known;
  };
  durdur();
  const auto picking = std::make_shared<Picking>();
  picking->known.insert(adresler_->begin(), adresler_->end());
  dilimle(
      [this, picking]() -> dao::Result<bool> {
        if (picking->row == BulList.rowCount()) return true;
        std::string name(BulList.key(picking->row++));
        if (picking->known.contains(name)) return false;
        const auto found = kartiBul(name);
        if (!found) return std::unexpected(found.error());
        if (*found && adresiVar()) picking->names.push_back(std::move(name));
        return false;
      },
      [this, picking] { ilerle(picking->row, BulList.rowCount()); },
      [this, picking] {
        adresler_->insert(adresler_->end(), picking->names.begin(), picking->names.end());
        istasyon.host.close(*this);
      });
}

dao::Result<bool> FrmFind::kartiBul(std::string_view name) {
  if (!kartlar_.isOpen()) {
    auto opened = istasyon.stores.personal.database.OpenRecordset("IDCard");
    if (!opened) return std::unexpected(opened.error());
    kartlar_ = std::move(*opened);
  }
  const dao::Status sought = kartlar_.Seek("=", name);
  if (!sought) return std::unexpected(sought);
  return !kartlar_.NoMatch();
}

bool FrmFind::adresiVar() {
  return std::ranges::any_of(
      addressLines, [this](const char* line) { return !kartlar_.Fields(line).view().empty(); });
}

}  // namespace search
