#include "shell/record_screen.h"

#include <algorithm>

#include "platform/dao/database.h"
#include "platform/text/fold.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "shell/captions.h"
#include "shell/fault_words.h"
#include "shell/font_record.h"
#include "shell/menu_icons.h"
#include "shell/phrases.h"
#include "shell/snapshot.h"
#include "shell/text_lookup.h"
#include "shell/window_settings.h"

namespace shell {

namespace {

constexpr std::array pictureFields{"txtp1", "txtp2", "txtp3", "txtp4", "txtp5", "txtp6"};

bool filled(const forms::Form& form, std::string_view control) {
  const forms::Control* const field = form.find(control);
  return field != nullptr && !field->snapshotText().empty();
}

}  // namespace

RecordScreen::RecordScreen(Station& station, std::string_view name)
    : Form(name), istasyon(station) {
  menuleriBagla();
  tbToolBar.ButtonClick.connect([this](std::string_view key) { tusBas(key); });
}

void RecordScreen::menuleriBagla() {
  mnuyeni.setShortcut("Ctrl+N");
  mnukaydet.setShortcut("Ctrl+S");
  mnuyazdır.setShortcut("Ctrl+P");
  mnukaydet.Click.connect([this] { Kaydet(); });
  mnukaydet.Refused.connect([this] { saveIsOff(); });
  mnusil.Click.connect([this] { Sil(); });
  mnucik.Click.connect([this] { istasyon.host.close(*this); });
  // Undo, cut, copy and paste belong to the focused field: the window sends them the usual
  // keystrokes.
  mnugerial.Click.connect([this] { istasyon.host.sendKeys("^z"); });
  mnukes.Click.connect([this] { istasyon.host.sendKeys("+{DELETE}"); });
  mnukopyala.Click.connect([this] { istasyon.host.sendKeys("^{INSERT}"); });
  mnuyapıştır.Click.connect([this] { istasyon.host.sendKeys("+{INSERT}"); });
  for (forms::MenuItem* entry : {&mnuşablon, &mnuonizleme, &mnuyazdır}) entry->setVisible(false);
}

void RecordScreen::tusGrubu(std::initializer_list<const char*> keys) {
  for (const char* key : keys) tbToolBar.addButton(key, key);
  tbToolBar.addSeparator();
}

bool RecordScreen::tusBas(std::string_view key) {
  if (key == "New") return mnuyeni.press(), true;
  if (key == "Save") return mnukaydet.press(), true;
  if (key == "Delete") return mnusil.press(), true;
  if (key == "Print") return mnuyazdır.press(), true;
  if (key == "Exit") return mnucik.press(), true;
  return false;
}

void RecordScreen::alanlariBagla() {
  for (const FieldRow& row : alanlar()) kontroluBagla(row.control(*this));
}

void RecordScreen::kontroluBagla(forms::Control& control) {
  if (auto* const field = dynamic_cast<forms::TextControl*>(&control))
    field->Change.connect([this] { tuskontrol(); });
  if (auto* const combo = dynamic_cast<forms::ComboBox*>(&control))
    combo->Click.connect([this] { tuskontrol(); });
  if (auto* const box = dynamic_cast<forms::CheckBox*>(&control))
    box->Click.connect([this] { tuskontrol(); });
}

void RecordScreen::alanGenislikleri(const dao::Database& database, std::string_view table) {
  const auto columns = database.fields(table);
  for (const FieldRow& row : alanlar()) {
    if (row.stored != Stored::Text && row.stored != Stored::Amount) continue;
    if (row.cut > 0) kontrol(row).setMaxLength(static_cast<std::size_t>(row.cut));
    if (row.cut > 0 || !columns) continue;
    const auto column = std::ranges::find_if(*columns, [&](const dao::FieldInfo& info) {
      return text::equalsNoCase(info.name, row.column);
    });
    if (column != columns->end()) kontrol(row).setMaxLength(static_cast<std::size_t>(column->size));
  }
}

void RecordScreen::Load() {
  basliklariYenile();
  if (yaziKaydi() > 0) Setkayitlarioku(istasyon, *this, yaziKaydi());
  AyarOku();
  menuikon(*this);
}

bool RecordScreen::QueryUnload() {
  if (letGo_) return true;
  if (!mnukaydet.enabled()) return mayLoseTyped();
  unanswered_ = false;
  mnukaydet.Click();
  if (!mnukaydet.enabled()) return true;
  return !unanswered_ && istasyon.confirmLoss(phrase(istasyon, Phrase::CloseUnsaved));
}

// Closing stores a change without a question; Esc is pressed too easily for that.
bool RecordScreen::mayEscape() {
  letGo_ = kayitkontrol();
  return letGo_;
}

void RecordScreen::Unload() {
  if (yaziKaydi() > 0) setkayityaz(istasyon, *this, yaziKaydi()).ignore();
  Ayaryaz();
}

void RecordScreen::basliklariYenile() {
  basliklariyaz(istasyon, *this);
  alanBasliklari(istasyon, *this, alanlar());
}

void RecordScreen::AyarOku() {
  pencereOku(istasyon, *this, istasyon.BransAdi, ayarAdi());
}

// Where a window was is not worth a message.
void RecordScreen::Ayaryaz() {
  pencereYaz(istasyon, *this, istasyon.BransAdi, ayarAdi()).ignore();
}

void RecordScreen::ResimVar() {
  const bool pictures = std::ranges::any_of(
      pictureFields, [this](const char* field) { return filled(*this, field); });
  tbToolBar.setButtonImage("resim", pictures ? "picturev" : "picture");
  tbToolBar.setButtonImage("film", filled(*this, "txtmov") ? "filmv" : "film");
}

void RecordScreen::etkinlestir(forms::MenuItem& entry, std::string_view button, bool enabled) {
  entry.setEnabled(enabled);
  tbToolBar.setButtonEnabled(button, enabled);
}

void RecordScreen::yeniEtkin(bool enabled) {
  etkinlestir(mnuyeni, "New", enabled);
  mnuonizleme.setEnabled(enabled);
  etkinlestir(mnuyazdır, "Print", enabled);
}

void RecordScreen::kaydedildi() {
  durumYaz(phrase(istasyon, Phrase::StateSaved) + text::shortTime(istasyon.clock.now()));
}

void RecordScreen::kaydedilemedi(const dao::Status& refused) {
  durumYaz(phrase(istasyon, Phrase::StateNotSaved) + kisaNedeni(istasyon, refused));
  hataSoyle(istasyon, Phrase::StoreFailed, refused);
}

bool RecordScreen::isimDegistiSor(forms::TextControl& field, const std::string& old) {
  if (old.empty() || old == field.text()) return true;
  const host::Answer answer = istasyon.askAboutText(
      old + ", " + field.text() + metinbul(istasyon, "msgisimdegisti"), host::Stake::Both);
  if (answer == host::Answer::No) field.setText(old);
  unanswered_ = answer == host::Answer::Cancel;
  return !unanswered_;
}

void RecordScreen::saveIsOff() {
  stateTold_ = true;
  durumYaz(kaydedilebilir() ? phrase(istasyon, Phrase::NothingToSave) : neededToSave());
}

std::string RecordScreen::neededToSave() {
  std::string names;
  for (const std::string& name : missing()) names += (names.empty() ? "" : ", ") + name;
  return names.empty() ? names : phrase(istasyon, Phrase::SaveNeeds) + names;
}

bool RecordScreen::mayLoseTyped() {
  return kaydedilebilir() || !hasTypedText() || askToLoseTyped();
}

bool RecordScreen::askToLoseTyped() {
  const std::string needed = neededToSave();
  return istasyon.confirmLoss(phrase(istasyon, Phrase::LoseTyped) +
                              (needed.empty() ? "" : "\n(" + needed + ")"));
}

std::string RecordScreen::wordsOf(const forms::Control& field) {
  std::string words = field.caption();
  std::erase(words, '&');
  return words;
}

std::string RecordScreen::sisim(std::string_view name) {
  return std::string(name.substr(0, name.find_last_not_of('*') + 1));
}

}  // namespace shell
