#include "exam/catalogue_screen.h"

#include <algorithm>
#include <set>

#include "exam/catalogue_name.h"
#include "platform/text/utf8.h"
#include "shell/file_words.h"
#include "shell/list_completion.h"
#include "shell/text_lookup.h"

namespace exam {

using shell::doldurulmus;
using shell::Phrase;

std::string kabulEdilen(std::string_view prescription) {
  constexpr std::string_view dropped = "\n  ";
  std::string text;
  for (const char character : prescription) {
    text += character;
    if (text.ends_with(dropped)) text.resize(text.size() - dropped.size());
  }
  return text;
}

void CatalogueScreen::connectList(Completion completion) {
  completion_ = completion;
  list().Click.connect([this] { rowChosen(); });
  isimAlani().KeyUp.connect([this](forms::Key key) { typed(key); });
  // What the user keeps stays as it is.
  isimAlani().LostFocus.connect([this] { static_cast<void>(lookUp()); });
}

// --- The list

void CatalogueScreen::listNames() {
  std::set<std::string> ticked;
  for (const forms::ListItem& item : list().items()) {
    if (item.selected) ticked.insert(item.text);
  }
  std::vector<forms::ListItem> names;
  folded_.clear();
  const std::string_view column = alanlar().front().column;
  dao::Recordset& rows = tablo();
  for (dao::Status moved = rows.MoveFirst(); moved && !rows.Eof(); moved = rows.MoveNext()) {
    const std::string name = rows.Fields(column).text();
    names.push_back({.text = name, .selected = ticked.contains(name)});
    folded_.push_back(foldedName(istasyon, name));
  }
  list().setItems(std::move(names));
  markShown();
}

void CatalogueScreen::chooseRow(int row) {
  following_ = true;
  list().setListIndex(row);
  following_ = false;
}

// The row of the record on the screen, else the one that the typed name leads to.
void CatalogueScreen::markShown() {
  const auto at = std::ranges::find(list().items(), txteski.text(), &forms::ListItem::text);
  const bool listed = !txteski.text().empty() && at != list().items().end();
  listed ? chooseRow(static_cast<int>(at - list().items().begin())) : followTyping();
}

// The list goes to the first name that begins with what was typed, and shows what follows it.
void CatalogueScreen::followTyping() {
  const std::string wanted = foldedName(istasyon, isimAlani().text());
  const auto at = std::ranges::find_if(
      folded_, [&](const std::string& name) { return name.starts_with(wanted); });
  const bool found = !wanted.empty() && at != folded_.end();
  chooseRow(found ? static_cast<int>(at - folded_.begin()) : -1);
  if (found) list().showFromRow(list().listIndex());
}

void CatalogueScreen::typed(const forms::Key& key) {
  if (key.code == forms::key_code::Down && list().count() > 0) return list().setFocus();
  followTyping();
  if (completion_ == Completion::WhileTyping && list().listIndex() >= 0)
    shell::completeWith(isimAlani(), list().text(), key);
}

void CatalogueScreen::rowChosen() {
  if (following_ || list().listIndex() < 0) return;
  chosen_ = show(list().text());
  markShown();
}

bool CatalogueScreen::showRow() {
  if (list().listIndex() < 0) return false;
  chosen_ = show(list().text());
  markShown();
  return chosen_;
}

// --- What the typed name stands for

// Names that differ in case only are one: the table says so, and the user's language.
std::optional<std::string> CatalogueScreen::known(std::string_view name) {
  if (auto stored = storedName(tablo(), alanlar().front().column, name)) return stored;
  const auto at = std::ranges::find(folded_, foldedName(istasyon, name));
  if (text::trimmed(name).empty() || at == folded_.end()) return std::nullopt;
  return list().items()[static_cast<std::size_t>(at - folded_.begin())].text;
}

bool CatalogueScreen::lookUp() {
  const std::string name = typedName();
  if (name.empty() || name == owner_) return true;
  const auto stored = known(name);
  if (!stored || *stored == txteski.text()) return true;
  return show(*stored) || name == owner_;
}

// The record that is on the screen keeps what was changed on it, and gets its name back.
bool CatalogueScreen::show(const std::string& stored) {
  if (stored == txteski.text()) return isimAlani().setText(text::trim(stored)), true;
  if (othersChanged() && !mayReplace(stored)) return false;
  if (alanlaritasi(stored)) return true;
  durumYaz(phrase(istasyon, Phrase::RecordGone));
  return false;
}

// Changes of the shown record are saved under its own name, whatever name was typed over it.
bool CatalogueScreen::mayReplace(std::string_view by) {
  const std::string name = isimAlani().text();
  const bool stored = !txteski.text().empty();
  if (stored) isimAlani().setText(text::trim(txteski.text()));
  const bool storable = mnukaydet.enabled() && (stored || !known(name));
  if (storable ? kayitkontrol()
               : istasyon.confirmLoss(doldurulmus(istasyon, Phrase::ShowInstead, {by})))
    return true;
  isimAlani().setText(name);
  if (!stored && foldedName(istasyon, name) == foldedName(istasyon, by)) own();
  return false;
}

std::optional<std::string> CatalogueScreen::nameToAdd(Phrase question) {
  const std::string name = typedName();
  if (name.empty()) return std::nullopt;
  if (const auto stored = known(name)) return text::trim(*stored);
  const std::string owner = ownerOfFields();
  if (istasyon.evetMi(doldurulmus(istasyon, question, {name, owner}))) return name;
  isimAlani().setFocus();
  return std::nullopt;
}

std::string CatalogueScreen::ownerOfFields() {
  const std::string name = typedName();
  const bool same = foldedName(istasyon, name) == foldedName(istasyon, owner_);
  return same || others().empty() || known(name) ? std::string() : owner_;
}

// --- What stands beside the name

std::string CatalogueScreen::others() {
  std::string texts;
  for (const shell::FieldRow& row : alanlar()) {
    if (&row.control(*this) != &isimAlani()) texts += row.control(*this).snapshotText();
  }
  return texts;
}

void CatalogueScreen::own() {
  owner_ = typedName();
}

void CatalogueScreen::beginWith(const std::string& name) {
  alanlaribosalt();
  isimAlani().setText(name);
}

void CatalogueScreen::kayitYuklendi() {
  NamedRecordScreen::kayitYuklendi();
  storedOthers_ = others();
  chosen_ = false;
  own();
}

void CatalogueScreen::alanlaribosalt() {
  NamedRecordScreen::alanlaribosalt();
  storedOthers_ = others();
  chosen_ = false;
  own();
}

void CatalogueScreen::store() {
  NamedRecordScreen::store();
  if (mnukaydet.enabled()) return;
  storedOthers_ = others();
  own();
}

// --- A name that was only searched for

// Nothing but the name of another record was typed.
bool CatalogueScreen::onlySearched() {
  const auto stored = known(typedName());
  return stored && *stored != txteski.text() && !othersChanged();
}

void CatalogueScreen::Yeni() {
  if (onlySearched() || kayitkontrol()) alanlaribosalt();
}

bool CatalogueScreen::QueryUnload() {
  const bool closes = mayLoseComposed() && (!mnukaydet.enabled() || settleName()) &&
                      NamedRecordScreen::QueryUnload();
  composedMayGo_ = composedMayGo_ && closes;
  return closes;
}

bool CatalogueScreen::mayEscape() {
  return mayLoseComposed() && (!mnukaydet.enabled() || settleName()) &&
         NamedRecordScreen::mayEscape();
}

bool CatalogueScreen::mayLoseComposed() {
  composedMayGo_ = composedMayGo_ || !holdsComposed() ||
                   istasyon.confirmLoss(phrase(istasyon, Phrase::LoseTyped));
  return composedMayGo_;
}

void CatalogueScreen::closeByButton(Composed what) {
  composedMayGo_ = true;
  handsOver_ = what == Composed::HandedOver;
  istasyon.host.close(*this);
  handsOver_ = false;
}

// What was accepted is handed over by a window that did close.
void CatalogueScreen::Unload() {
  if (handsOver_) istasyon.AktarilanMetin = kabulEdilen(composed());
  NamedRecordScreen::Unload();
}

// A record that was typed with more than its name is stored at closing without a question.
bool CatalogueScreen::settleName() {
  const std::string old = txteski.text();
  const std::string name = typedName();
  if (old.empty() ? !others().empty() : name == text::trim(old)) return true;
  const auto stored = known(name);
  auto answer = host::Answer::No;
  if (!stored || *stored == old) {
    answer = istasyon.askAboutText(old.empty()
                                       ? doldurulmus(istasyon, Phrase::StoreUnknown, {name})
                                       : old + ", " + name + metinbul(istasyon, "msgisimdegisti"),
                                   host::Stake::Both);
  }
  isimAlani().setText(answer == host::Answer::No ? text::trim(old) : name);
  if (answer == host::Answer::Yes) store();
  if (answer == host::Answer::Cancel) isimAlani().setFocus();
  return answer == host::Answer::No || !mnukaydet.enabled();
}

}  // namespace exam
