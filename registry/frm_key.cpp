#include "registry/frm_key.h"

#include <algorithm>
#include <utility>

#include "platform/text/utf8.h"
#include "registry/name_search.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/phrases.h"

namespace registry {

namespace {

// What the store says of a name, as the data of its row.
constexpr long shown = 0;
constexpr long hidden = 1;
constexpr long otherMark = 2;  // says nothing to anybody; written empty with the next choice

long storedState(std::string_view key) {
  const std::string_view mark = text::trimmed(key);
  return mark.empty() ? shown : mark == hiddenMark ? hidden : otherMark;
}

}  // namespace

FrmKey::FrmKey(shell::Station& station) : Form("Frmkey"), istasyon(station) {
  txtara.Change.connect([this] { Listele(); });
  Lstkey.ItemCheck.connect([this] { say(); });
  buttamam.Click.connect([this] { tamam(); });
  Butİptal.Click.connect([this] { istasyon.host.close(*this); });
}

void FrmKey::Load() {
  shell::basliklariyaz(istasyon, *this);
  Lstkey.setToolTip(phrase(istasyon, shell::Phrase::NoNameFound));
  Listele();
}

void FrmKey::Listele() {
  secimiTopla();
  Lstkey.clear();
  alinan_ = 0;
  const bool turkish = istasyon.turkce();
  auto reader = dao::PrefixReader::open(istasyon.stores.personal.database, "IDCard", "Name",
                                        turkish ? dao::Fold::Turkish : dao::Fold::General,
                                        text::trimmed(txtara.text()));
  if (!reader) return Lsayi.setCaption(shell::kisaNedeni(istasyon, reader.error()));
  okuyan_ = std::move(*reader);
  say();
  siradaki();
}

void FrmKey::siradaki() {
  if (std::exchange(bekliyor_, true)) return;
  istasyon.host.later([this, alive = yasiyor_] {
    if (*alive) surdur();
  });
}

void FrmKey::surdur() {
  bekliyor_ = false;
  if (!okuyan_) return;
  const auto done = okuyan_->step();
  if (!done) return okuyan_.reset(), Lsayi.setCaption(shell::kisaNedeni(istasyon, done.error()));
  Lstkey.addItems(yeniSatirlar());
  if (!*done) return siradaki();
  okuyan_.reset();
  say();
}

std::vector<forms::ListItem> FrmKey::yeniSatirlar() {
  std::vector<forms::ListItem> items;
  for (const dao::PrefixRow& row : okuyan_->rows().subspan(alinan_)) {
    const long stored = storedState(row.extra);
    const auto changed = degisen_.find(row.name);
    items.push_back({.text = std::string(row.name),
                     .data = stored,
                     .selected = changed == degisen_.end() ? stored == hidden : changed->second});
  }
  alinan_ += items.size();
  return items;
}

void FrmKey::secimiTopla() {
  for (const forms::ListItem& item : Lstkey.items()) {
    if (item.data != (item.selected ? hidden : shown)) {
      degisen_.insert_or_assign(item.text, item.selected);
    } else {
      degisen_.erase(item.text);
    }
  }
}

void FrmKey::say() {
  const auto chosen = std::ranges::count(Lstkey.items(), true, &forms::ListItem::selected);
  Lsayi.setCaption(phrase(istasyon, shell::Phrase::PatientCount) + std::to_string(Lstkey.count()) +
                   "   " + phrase(istasyon, shell::Phrase::HiddenCount) + std::to_string(chosen));
}

void FrmKey::tamam() {
  secimiTopla();
  const dao::Status written = yaz();
  if (written) return istasyon.host.close(*this);
  shell::hataSoyle(istasyon, shell::Phrase::StoreFailed, written);
}

// All or nothing. Only rows that change are written.
dao::Status FrmKey::yaz() {
  auto transaction = istasyon.stores.personal.database.beginTransaction();
  if (!transaction) return transaction.error();
  for (const auto& [name, hide] : degisen_) {
    const dao::Status marked = isaretle(name, hide);
    if (!marked) return marked;
  }
  return transaction->commit();
}

// A patient whom another station deleted meanwhile needs no mark.
dao::Status FrmKey::isaretle(const std::string& name, bool hide) {
  dao::Recordset& cards = istasyon.stores.personal.IDCard;
  const dao::Status sought = cards.Seek("=", name);
  if (!sought || cards.NoMatch()) return sought;
  dao::Status status = cards.Edit();
  if (status) status = cards.Fields("Key").Set(hide ? hiddenMark : std::string_view());
  if (status) status = cards.Update();
  if (!status) cards.CancelUpdate();
  return status;
}

}  // namespace registry
