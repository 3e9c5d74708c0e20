#include "search/frm_find.h"

#include "platform/text/date.h"
#include "platform/text/number.h"
#include "shell/blood_groups.h"
#include "shell/captions.h"
#include "shell/list_completion.h"
#include "shell/text_lookup.h"
#include "stores/value_list.h"

namespace search {

namespace {

constexpr int defaultWidth = 1100;
constexpr int defaultHeight = 720;

// What stands for the parts of a date that are left empty.
constexpr long anyDay = 28;
constexpr long anyMonth = 1;
constexpr long anyYear = 2000;

std::optional<long> partOr(const forms::TextBox& field, long otherwise) {
  return field.text().empty() ? otherwise : text::wholeNumber(field.text());
}

}  // namespace

FrmFind::FrmFind(shell::Station& station)
    : Form("FrmFind"), istasyon(station), adresler_(station.AdresListesi), is_(station.host) {
  width = defaultWidth;
  height = defaultHeight;
  mnuyazdır.setShortcut("Ctrl+P");
  ListFiltre.setVisible(false);
  PBar.setVisible(false);
  ButDur.setVisible(false);
  for (forms::CommandButton* button : {&butbul, &ButGit, &buttamam}) button->setDefault();
  filtreleriBagla();
  dugmeleriBagla();
  sayiyiYaz();
  tuskontrol();
}

void FrmFind::filtreleriBagla() {
  for (const FilterRow& row : filterRows())
    row.control(*this).Change.connect([this] { filtreDegisti(); });
  for (const FilterList& list : filterLists()) {
    auto& combo = static_cast<forms::ComboBox&>(list.control(*this));
    combo.KeyUp.connect([&combo](forms::Key key) { shell::completeFromList(combo, key); });
    combo.Click.connect([this] { filtreDegisti(); });
  }
  ComKanGrubu.KeyUp.connect([this](forms::Key key) { shell::completeFromList(ComKanGrubu, key); });
  ComKanGrubu.Click.connect([this] { filtreDegisti(); });
  ComCinsiyet.Change.connect([this] { cinsiyetYazildi(); });
  ComCinsiyet.Click.connect([this] { filtreDegisti(); });
  for (forms::TextBox* part : {&TxtGün, &TxtAy, &TxtYıl})
    part->LostFocus.connect([this, part] { hatalitarih(*part); });
}

void FrmFind::dugmeleriBagla() {
  butbul.Click.connect([this] { bul(); });
  ButTümListe.Click.connect([this] { TümListe(); });
  ButTemizle.Click.connect([this] { alanlaribosalt(); });
  mnuyeni.Click.connect([this] { alanlaribosalt(); });
  ButFiltre.Click.connect([this] { sayfaSec(Page::Filters); });
  ButDur.Click.connect([this] { durdur(); });
  ButGit.Click.connect([this] { git(); });
  buttamam.Click.connect([this] { tamam(); });
  BulList.DblClick.connect([this] { ButGit.press(); });
  BulList.ItemClick.connect([this] { ButGit.setEnabled(true); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
  mnucik.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmFind::Load() {
  shell::basliklariyaz(istasyon, *this);
  for (const FilterRow& row : filterRows())
    row.control(*this).setCaption(metinbul(istasyon, row.captionKey));
  BulList.setColumns(CardLine::headings(istasyon));
  Listeleriyaz();
  baski.Setkayitlarioku();
  toplam_ = static_cast<std::size_t>(istasyon.stores.personal.IDCard.RecordCount());
  sayfaSec(Page::Filters);
  if (adresler_ == nullptr || adresler_->empty()) return;
  ListFiltre.clear();
  ListFiltre.appendItems(*adresler_);
  SonuçlarıListele();
}

void FrmFind::Unload() {
  is_.stop();
  baski.setkayityaz().ignore();
}

void FrmFind::Listeleriyaz() {
  ComCinsiyet.setItems({metinbul(istasyon, "kadin"), metinbul(istasyon, "Erkek")});
  ComKanGrubu.setItems({shell::bloodGroups.begin(), shell::bloodGroups.end()});
  for (const FilterList& list : filterLists()) {
    static_cast<forms::ComboBox&>(list.control(*this))
        .setItems(stores::values(istasyon.stores.personal, list.table));
  }
}

std::string FrmFind::FindAlanlar() {
  std::string all;
  for (const FilterRow& row : filterRows()) all += row.control(*this).text();
  return all;
}

void FrmFind::tuskontrol() {
  butbul.setEnabled(!FindAlanlar().empty());
}

// A search for what the filters said before has nothing more to tell.
void FrmFind::filtreDegisti() {
  durdur();
  tuskontrol();
}

void FrmFind::alanlaribosalt() {
  sayfaSec(Page::Filters);
  for (const FilterRow& row : filterRows()) row.control(*this).setText("");
}

// One letter is enough: the beginning of a row chooses the row, and nothing else can stand there.
void FrmFind::cinsiyetYazildi() {
  ComCinsiyet.setListIndex(shell::rowOfFirstLetter(ComCinsiyet));
}

bool FrmFind::tarihGecerli() const {
  const auto day = partOr(TxtGün, anyDay);
  const auto month = partOr(TxtAy, anyMonth);
  const auto year = partOr(TxtYıl, anyYear);
  if (!day || !month || !year) return false;
  const auto within = [](long number, long most) { return number >= 1 && number <= most; };
  if (!within(*day, 31) || !within(*month, 12) || !within(*year, 9999)) return false;
  return std::chrono::year_month_day(std::chrono::year(static_cast<int>(*year)),
                                     std::chrono::month(static_cast<unsigned>(*month)),
                                     std::chrono::day(static_cast<unsigned>(*day)))
      .ok();
}

bool FrmFind::hatalitarih(forms::TextBox& field) {
  if (denetliyor_ || tarihGecerli()) return true;
  denetliyor_ = true;
  istasyon.bilgi(metinbul(istasyon, "msghatalitarih"));
  field.setFocus();
  field.selectAll();
  denetliyor_ = false;
  return false;
}

void FrmFind::sayfaSec(Page page) {
  const bool result = page == Page::Result;
  PFiltre.setVisible(!result);
  for (forms::CommandButton* button : {&ButTemizle, &ButTümListe, &butbul})
    button->setVisible(!result);
  Frame1.setVisible(result);
  ButFiltre.setVisible(result);
  ButGit.setVisible(result && adresler_ == nullptr);
  buttamam.setVisible(result && adresler_ != nullptr);
  result ? BulList.setFocus() : Txtİsim.setFocus();
}

// Enter in a date field does not leave it, so the date is looked at here too.
void FrmFind::bul() {
  for (forms::TextBox* part : {&TxtYıl, &TxtAy, &TxtGün}) {
    if ((part == activeControl() || part == &TxtGün) && !hatalitarih(*part)) return;
  }
  istasyon.turkce() ? BulListYazTUR() : BulListYaz();
}

}  // namespace search
