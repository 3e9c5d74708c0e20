// The protocol of every screen that shows one stored record at a time. A screen gives its field
// rows, its table and what is peculiar to it; load, store, clear, snapshot, dirty test and the two
// questions are here.
#pragma once

#include <span>
#include <string>
#include <string_view>

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

  // The fields' texts in row order, with no separator: what the snapshot holds and is compared
  // with.
  [[nodiscard]] virtual std::string YeniAlanlar();
  // Takes the snapshot and disables Save.
  void Eskialan();
  // Re-evaluates Save and New; runs on every change of a field.
  virtual void tuskontrol();
  // Asks the save question when there is something to save; Yes saves, No lets the changes go.
  // False when the save was refused, and the screen must stay as it is.
  [[nodiscard]] bool kayitkontrol();
  // Copies the fields into the record buffer; the caller has called AddNew or Edit and calls Update
  // afterwards.
  virtual dao::Status Forumalanlaritasi();

  // Without the marks that tell namesakes apart.
  [[nodiscard]] static std::string sisim(std::string_view name);

  // The file menu and toolbar that every record screen has.
  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuyeni{MnuDosya, "mnuyeni"};
  forms::MenuItem mnukaydet{MnuDosya, "mnukaydet"};
  forms::MenuItem mnusil{MnuDosya, "mnusil"};
  forms::Toolbar tbToolBar{*this, "tbToolBar"};

 protected:
  // To be called by the screen's constructor, when its fields exist: every change runs tuskontrol.
  void alanlariBagla();
  // Fields take as many characters as their columns; to be called when the table is open.
  void alanGenislikleri(const dao::Database& database, std::string_view table);
  // Copies the current record onto the fields, trimmed; a Null column leaves its field blank.
  void alanlariYukle();
  [[nodiscard]] forms::TextControl& kontrol(const FieldRow& row) { return row.control(*this); }
  // Enables or disables a menu entry and the toolbar button that mirrors it.
  void etkinlestir(forms::MenuItem& entry, std::string_view button, bool enabled);
  // One more condition for Save, besides a difference from the snapshot.
  [[nodiscard]] virtual bool kaydedilebilir() { return true; }

  Station& istasyon;

 private:
  dao::Status alaniTasi(const FieldRow& row);
};

}  // namespace shell
