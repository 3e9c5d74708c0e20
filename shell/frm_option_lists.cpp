// The Options screen's second tab: the seven lookup lists of the card.
#include <algorithm>
#include <array>

#include "platform/text/utf8.h"
#include "shell/fault_words.h"
#include "shell/frm_option.h"
#include "shell/phrases.h"
#include "shell/text_lookup.h"
#include "stores/value_list.h"

namespace shell {

namespace {

struct ListRow {
  forms::ComboBox FrmOption::*combo;
  std::string_view table;
};
constexpr std::array<ListRow, 7> lists{{
    {&FrmOption::comdogumyeri, "Place Of Birth"},
    {&FrmOption::ComMeslek, "Profession"},
    {&FrmOption::ComHitap, "Adressing"},
    {&FrmOption::ComKurum, "Company"},
    {&FrmOption::comgorev, "Job"},
    {&FrmOption::comyakinlik, "Relationship"},
    {&FrmOption::ComRefere, "Referance"},
}};

}  // namespace

void FrmOption::listeleriBagla() {
  for (const ListRow& row : lists) {
    forms::ComboBox& combo = this->*row.combo;
    combo.GotFocus.connect([this, &combo] { listeSec(combo); });
    combo.Click.connect([this, &combo] { listeSec(combo); });
  }
  mnuekle.Click.connect([this] { degerEkle(); });
  mnudüzen.Click.connect([this] { degerDegistir(); });
  mnusil.Click.connect([this] { degerSil(); });
  ListSeçKaldır();
}

void FrmOption::ListeleriKaydet() {
  for (const ListRow& row : lists) listeyiDoldur(this->*row.combo);
}

void FrmOption::ListKaydet() {
  if (istasyon.kart != nullptr) istasyon.kart->Listeleriyaz();
}

void FrmOption::ListSeçKaldır() {
  for (const ListRow& row : lists) (this->*row.combo).setListIndex(-1);
  secilen_ = nullptr;
  mnuekle.setEnabled(false);
  mnudüzen.setEnabled(false);
  mnusil.setEnabled(false);
}

void FrmOption::listeSec(forms::ComboBox& combo) {
  secilen_ = &combo;
  mnuekle.setEnabled(true);
  mnudüzen.setEnabled(combo.listIndex() >= 0);
  mnusil.setEnabled(combo.listIndex() >= 0);
}

std::string_view FrmOption::secilenTablo() const {
  for (const ListRow& row : lists) {
    if (&(this->*row.combo) == secilen_) return row.table;
  }
  return {};
}

void FrmOption::listeyiDoldur(forms::ComboBox& combo) {
  const auto row =
      std::ranges::find_if(lists, [&](const ListRow& r) { return &(this->*r.combo) == &combo; });
  combo.setItems(stores::values(istasyon.stores.personal, row->table));
}

void FrmOption::degerEkle() {
  if (secilen_ == nullptr) return;
  const std::string value =
      text::trim(istasyon.host.inputBox(metinbul(istasyon, "inpyenigir"), secilen_->caption(), ""));
  if (!value.empty())
    degistir(stores::addValue(istasyon.stores.personal, secilenTablo(), value), value);
}

void FrmOption::degerDegistir() {
  if (secilen_ == nullptr || secilen_->listIndex() < 0) return;
  const std::string old = secilen_->text();
  const std::string value = text::trim(
      istasyon.host.inputBox(metinbul(istasyon, "inpduzeltmeler"), secilen_->caption(), old));
  if (value.empty() || value == old) return;
  degistir(stores::changeValue(istasyon.stores.personal, secilenTablo(), old, value), value);
}

void FrmOption::degerSil() {
  if (secilen_ == nullptr || secilen_->listIndex() < 0) return;
  if (!istasyon.confirmLoss(secilen_->text() + "\n" + metinbul(istasyon, "msgsilinecekkayit")))
    return;
  degistir(stores::deleteValue(istasyon.stores.personal, secilenTablo(), secilen_->text()), {});
}

void FrmOption::degistir(const platform::Status& changed, std::string_view shown) {
  if (!changed) hataSoyle(istasyon, Phrase::StoreFailed, changed);
  listeyiDoldur(*secilen_);
  secilen_->setListIndex(secilen_->rowOf(text::trim(shown)));
  listeSec(*secilen_);
}

}  // namespace shell
