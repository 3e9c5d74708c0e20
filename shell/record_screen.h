// The protocol of every screen that shows one stored record at a time. A screen gives its field
// rows, its table and what is peculiar to it; load, store, clear, snapshot, dirty test, the two
// questions and closing are here.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/recordset.h"
#include "platform/forms/form.h"
#include "platform/forms/menu.h"
#include "shell/field_row.h"
#include "shell/station.h"

namespace shell {

class RecordScreen : public forms::Form {
 public:
  RecordScreen(Station& istasyon, std::string_view name);

  [[nodiscard]] virtual std::span<const FieldRow> alanlar() const = 0;
  // The open table that the records live in; its current record is never assumed, always sought
  // again.
  [[nodiscard]] virtual dao::Recordset& tablo() = 0;
  // The key of the stored record on the screen; empty for one that was never saved.
  [[nodiscard]] virtual std::string eskiAnahtar() const = 0;
  // Where this family of screens keeps its snapshot in the shared state.
  [[nodiscard]] virtual std::string& yedek() = 0;

  virtual void Kaydet() = 0;
  virtual void Sil() = 0;
  virtual void alanlaribosalt();
  // Shows the stored record of that key. False, and the screen stays as it is, when there is none.
  virtual bool alanlaritasi(const dao::Value& key);

  // The fields' texts in row order, with no separator: what the snapshot holds and is compared
  // with.
  [[nodiscard]] virtual std::string YeniAlanlar();
  // Takes the snapshot and disables Save.
  void Eskialan();
  // Re-evaluates Save, New and what follows New; runs on every change of a field.
  virtual void tuskontrol();
  // Asks the save question when there is something to save; Yes saves, No lets the changes go. What
  // was typed and cannot be saved is let go of after another question. False when the save was
  // refused or nothing was answered, and the screen must stay as it is.
  [[nodiscard]] bool kayitkontrol();
  // Copies the fields into the record buffer; the caller has called AddNew or Edit and calls Update
  // afterwards.
  virtual dao::Status Forumalanlaritasi();

  // The window's size and state, kept for the speciality.
  virtual void AyarOku();
  virtual void Ayaryaz();
  // Shows on the toolbar whether a picture or a film is linked to the record.
  void ResimVar();

  void Load() override;
  // A changed record is stored without a question. When that is refused, or when what was typed is
  // no record, the user is asked whether to close all the same; the window stays unless that is
  // wanted.
  [[nodiscard]] bool QueryUnload() override;
  // The save question: whoever says No to it has the record closed as it is stored.
  [[nodiscard]] bool mayEscape() override;
  void Unload() override;

  // Without the marks that tell namesakes apart.
  [[nodiscard]] static std::string sisim(std::string_view name);

  // The menus and the toolbar that every record screen has. Template, preview and print are shown
  // by a screen that prints.
  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuyeni{MnuDosya, "mnuyeni"};
  forms::MenuItem mnukaydet{MnuDosya, "mnukaydet"};
  forms::MenuItem mnusil{MnuDosya, "mnusil"};
  forms::MenuItem çizgi1{MnuDosya, "çizgi1", forms::MenuKind::Separator};
  forms::MenuItem mnuşablon{MnuDosya, "mnuşablon"};
  forms::MenuItem mnuonizleme{MnuDosya, "mnuonizleme"};
  forms::MenuItem mnuyazdır{MnuDosya, "mnuyazdır"};
  forms::MenuItem çizgi2{MnuDosya, "çizgi2", forms::MenuKind::Separator};
  forms::MenuItem mnucik{MnuDosya, "mnucik"};

  forms::MenuItem MnuDuzen{*this, "MnuDuzen"};
  forms::MenuItem mnugerial{MnuDuzen, "mnugerial"};
  forms::MenuItem mnukes{MnuDuzen, "mnukes"};
  forms::MenuItem mnukopyala{MnuDuzen, "mnukopyala"};
  forms::MenuItem mnuyapıştır{MnuDuzen, "mnuyapıştır"};

  forms::Toolbar tbToolBar{*this, "tbToolBar"};

 protected:
  // To be called by the screen's constructor, when its fields exist: every change runs tuskontrol.
  void alanlariBagla();
  // Fields take as many characters as their columns; to be called when the table is open.
  void alanGenislikleri(const dao::Database& database, std::string_view table);
  // Copies the current record onto the fields, trimmed; a Null column leaves its field blank.
  void alanlariYukle();
  // Copies one column of the current record onto its field.
  void alaniYukle(const FieldRow& row);
  // The control of a row that holds a text; a row of any other kind has none.
  [[nodiscard]] forms::TextControl& kontrol(const FieldRow& row) {
    return static_cast<forms::TextControl&>(row.control(*this));
  }
  // Adds buttons and, behind them, a gap.
  void tusGrubu(std::initializer_list<const char*> keys);
  // Enables or disables a menu entry and the toolbar button that mirrors it.
  void etkinlestir(forms::MenuItem& entry, std::string_view button, bool enabled);
  // New, and what follows it: there is something on the screen to preview and print.
  virtual void yeniEtkin(bool enabled);
  // Presses the entry that a toolbar button stands for; false for a button of the screen's own.
  virtual bool tusBas(std::string_view key);

  // Asks whether the record that was stored under `old` is to get the name that stands in the field
  // now; on No the old one is put back. False when that is not answered: nothing is saved then.
  [[nodiscard]] bool isimDegistiSor(forms::TextControl& field, const std::string& old);

  // Whether the field shows something else than it did when the snapshot was taken.
  [[nodiscard]] bool fieldChanged(const forms::Control& field);
  [[nodiscard]] bool anyFieldChanged(const forms::Control* except = nullptr);
  // What the snapshot holds of the field.
  [[nodiscard]] std::string savedText(const forms::Control& field);
  // The snapshot holds that text from now on: its words are in another language, or the store has
  // another value.
  void setSavedText(const forms::Control& field, std::string text);

  // One more condition for Save, besides a difference from the snapshot.
  [[nodiscard]] virtual bool kaydedilebilir() { return true; }
  // What is wanting for that condition, in the user's words.
  [[nodiscard]] virtual std::vector<std::string> missing() { return {}; }
  // Whether somebody typed what the snapshot does not hold.
  [[nodiscard]] virtual bool hasTypedText() { return anyFieldChanged(); }
  // True when nothing was typed that cannot be saved, or when it may be lost.
  [[nodiscard]] bool mayLoseTyped();
  [[nodiscard]] bool askToLoseTyped();
  // The last question kept the screen as it is because the user wanted to go no further.
  [[nodiscard]] bool unanswered() const { return unanswered_; }
  // The user has said already that what is not saved may go with the window.
  [[nodiscard]] bool mayGoUnsaved() const { return letGo_; }
  // The keys for Save were pressed while it is off: says why.
  virtual void saveIsOff();
  // The words in front of a field.
  [[nodiscard]] static std::string wordsOf(const forms::Control& field);
  // Whether anything is on the screen that New could clear.
  [[nodiscard]] virtual bool temizlenebilir();
  // What else of a record is shown, once its fields are; the snapshot is taken afterwards.
  virtual void kayitYuklendi() {}
  // The number of the screen's font record; 0 when it keeps none.
  [[nodiscard]] virtual int yaziKaydi() const { return 0; }
  // In front of the window's keys in the settings.
  [[nodiscard]] virtual std::string ayarAdi() const { return istasyon.BransAdi; }
  virtual void basliklariYenile();

  // The line that tells how the record stands.
  virtual void durumYaz(std::string text) = 0;
  void kaydedildi();
  // The screen keeps what was typed; the reason is told.
  void kaydedilemedi(const dao::Status& refused);

  Station& istasyon;

 private:
  void menuleriBagla();
  void kontroluBagla(forms::Control& control);
  dao::Status alaniTasi(const FieldRow& row);
  [[nodiscard]] std::string saklanan(const FieldRow& row);
  [[nodiscard]] bool staysAsStored(const FieldRow& row);
  [[nodiscard]] std::string shownText(const FieldRow& row);
  [[nodiscard]] std::size_t rowOf(const forms::Control& field);
  void tellState();
  [[nodiscard]] std::string neededToSave();

  std::vector<std::string> saved_;  // the fields in the snapshot, in row order
  bool stateTold_ = false;          // the line tells of changes or of what is missing
  bool letGo_ = false;              // what is not saved may go with the window
  bool unanswered_ = false;         // the user left the question of the last step without an answer
};

}  // namespace shell
